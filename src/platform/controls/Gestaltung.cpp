#include "platform/controls/Gestaltung.h"

#include <QApplication>
#include <QFont>
#include <QHash>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

#include "platform/controls/TovaStil.h"

namespace {

constexpr double KleinsteSchrift = 10.5;

// The toolkit's own few texts, where its German translation isn't installed.
class EigeneTexte : public QTranslator {
 public:
  using QTranslator::QTranslator;
  bool isEmpty() const override { return false; }
  QString translate(const char*, const char* text, const char*, int) const override {
    static const QHash<QString, QString> texte = {
        {QStringLiteral("OK"), QStringLiteral("OK")},
        {QStringLiteral("&OK"), QStringLiteral("&OK")},
        {QStringLiteral("Cancel"), QStringLiteral("Abbrechen")},
        {QStringLiteral("&Cancel"), QStringLiteral("&Abbrechen")},
        {QStringLiteral("Yes"), QStringLiteral("Ja")},
        {QStringLiteral("&Yes"), QStringLiteral("&Ja")},
        {QStringLiteral("No"), QStringLiteral("Nein")},
        {QStringLiteral("&No"), QStringLiteral("&Nein")},
        {QStringLiteral("Close"), QStringLiteral("Schließen")},
        {QStringLiteral("&Close"), QStringLiteral("&Schließen")},
        {QStringLiteral("Open"), QStringLiteral("Öffnen")},
        {QStringLiteral("&Open"), QStringLiteral("Ö&ffnen")},
        {QStringLiteral("Save"), QStringLiteral("Speichern")},
        {QStringLiteral("&Save"), QStringLiteral("S&peichern")},
        {QStringLiteral("&Undo"), QStringLiteral("&Rückgängig")},
        {QStringLiteral("&Redo"), QStringLiteral("Wieder&herstellen")},
        {QStringLiteral("Cu&t"), QStringLiteral("&Ausschneiden")},
        {QStringLiteral("&Copy"), QStringLiteral("&Kopieren")},
        {QStringLiteral("&Paste"), QStringLiteral("Einf&ügen")},
        {QStringLiteral("Delete"), QStringLiteral("Löschen")},
        {QStringLiteral("Select All"), QStringLiteral("Alles auswählen")}};
    return texte.value(QString::fromUtf8(text));
  }
};

struct Farben {
  const char *fenster, *text, *feld, *feld2, *knopf, *licht, *mittel, *dunkel, *akzent, *akzentText,
      *matt, *link, *blass;
};

constexpr Farben Hell = {"#f6f2ea", "#2b2620", "#fffdf9", "#f8f1e3", "#ece4d6",
                         "#ffffff", "#d9cfbe", "#b3a791", "#9a5b00", "#ffffff",
                         "#857a6a", "#7a4700", "#e3cfa6"};
constexpr Farben Dunkel = {"#2a2723", "#ece5da", "#1f1d1a", "#262320", "#3a3630",
                           "#4b463f", "#37332e", "#171513", "#e0a13a", "#1c1710",
                           "#a0968a", "#f0be6a", "#5a4420"};

QPalette ausFarben(const Farben& f) {
  const auto farbe = [](const char* name) { return QColor(QString::fromLatin1(name)); };
  QPalette p;
  p.setColor(QPalette::Window, farbe(f.fenster));
  p.setColor(QPalette::WindowText, farbe(f.text));
  p.setColor(QPalette::Base, farbe(f.feld));
  p.setColor(QPalette::AlternateBase, farbe(f.feld2));
  p.setColor(QPalette::Text, farbe(f.text));
  p.setColor(QPalette::Button, farbe(f.knopf));
  p.setColor(QPalette::ButtonText, farbe(f.text));
  p.setColor(QPalette::BrightText, farbe(f.akzentText));
  p.setColor(QPalette::ToolTipBase, farbe(f.feld));
  p.setColor(QPalette::ToolTipText, farbe(f.text));
  p.setColor(QPalette::Light, farbe(f.licht));
  p.setColor(QPalette::Midlight, farbe(f.knopf));
  p.setColor(QPalette::Mid, farbe(f.mittel));
  p.setColor(QPalette::Dark, farbe(f.dunkel));
  p.setColor(QPalette::Shadow, farbe(f.dunkel).darker(150));
  p.setColor(QPalette::Highlight, farbe(f.akzent));
  p.setColor(QPalette::HighlightedText, farbe(f.akzentText));
  p.setColor(QPalette::Link, farbe(f.link));
  p.setColor(QPalette::LinkVisited, farbe(f.link));
  p.setColor(QPalette::PlaceholderText, farbe(f.matt));
  for (const auto rolle :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::HighlightedText})
    p.setColor(QPalette::Disabled, rolle, farbe(f.matt));
  p.setColor(QPalette::Disabled, QPalette::Base, farbe(f.fenster));
  p.setColor(QPalette::Disabled, QPalette::Highlight, farbe(f.mittel));
  // Marked rows stay readable but calm in a list that hasn't the keyboard.
  p.setColor(QPalette::Inactive, QPalette::Highlight, farbe(f.blass));
  p.setColor(QPalette::Inactive, QPalette::HighlightedText, farbe(f.text));
  return p;
}

void texteLaden(QApplication& anwendung) {
  auto* texte = new QTranslator(&anwendung);
  const QStringList ordner = {
      QLibraryInfo::path(QLibraryInfo::TranslationsPath),
      QCoreApplication::applicationDirPath() + QStringLiteral("/translations")};
  for (const QString& pfad : ordner)
    if (texte->load(QStringLiteral("qtbase_de"), pfad)) {
      QCoreApplication::installTranslator(texte);
      return;
    }
  delete texte;
  QCoreApplication::installTranslator(new EigeneTexte(&anwendung));
}

}  // namespace

namespace Gestaltung {

QPalette palette(bool dunkel) { return ausFarben(dunkel ? Dunkel : Hell); }

bool istDunkel(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < 128;
}

QColor warnfarbe(const QPalette& palette) {
  return istDunkel(palette) ? QColor(0xff, 0x9e, 0x80) : QColor(0xb0, 0x2a, 0x12);
}

}  // namespace Gestaltung

void gestalten(QApplication& anwendung) {
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Germany));
  const bool dunkel = Gestaltung::istDunkel(QGuiApplication::palette());
  QApplication::setStyle(new TovaStil);
  QApplication::setPalette(Gestaltung::palette(dunkel));
  QFont schrift = QApplication::font();
  if (schrift.pointSizeF() < KleinsteSchrift) schrift.setPointSizeF(KleinsteSchrift);
  QApplication::setFont(schrift);
  texteLaden(anwendung);
}
