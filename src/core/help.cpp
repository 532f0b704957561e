#include "core/help.h"

#include "core/globals.h"
#include "platform/files/Textdatei.h"

namespace {

const QString Ende = QStringLiteral("#ende#");

bool istUnterstrichen(const QStringList& zeilen, qsizetype nummer, QChar strich) {
  if (nummer + 1 >= zeilen.size() || zeilen[nummer].trimmed().isEmpty()) return false;
  const QString linie = zeilen[nummer + 1].trimmed();
  return linie.size() >= 3 && linie.count(strich) == linie.size();
}

// Builds the text block by block; neighbouring lines of the same kind share a block.
class HtmlBauer {
 public:
  void überschrift(const QString& text, const char* marke) {
    schließen();
    const QString name = QString::fromLatin1(marke);
    m_html += QStringLiteral("<%1>%2</%1>\n").arg(name, text.toHtmlEscaped());
  }
  void zeile(const QString& text, const char* block) {
    if (m_offen != QLatin1String(block)) {
      schließen();
      m_offen = QLatin1String(block);
      m_html += QStringLiteral("<%1>").arg(m_offen);
    } else if (m_offen == QLatin1String("pre")) {
      m_html += u'\n';
    } else if (m_offen == QLatin1String("p")) {
      m_html += u' ';
    }
    const QString inhalt = text.toHtmlEscaped();
    m_html += m_offen == QLatin1String("ul") ? QStringLiteral("<li>%1</li>").arg(inhalt) : inhalt;
  }
  void schließen() {
    if (!m_offen.isEmpty()) m_html += QStringLiteral("</%1>\n").arg(m_offen);
    m_offen.clear();
  }
  QString html() const { return m_html; }

 private:
  QString m_html;
  QString m_offen;
};

}  // namespace

namespace Hilfe {

QString datei() { return TZ_Variablen::AppPfad + QStringLiteral("HILFETOVA.HLP"); }

QString fehltMeldung() {
  return QStringLiteral("Die Hilfedatei ") + TZ_Variablen::AppPfad +
         QStringLiteral("HILFETOVA.HLP existiert nicht!");
}

std::optional<QStringList> abschnitt(const QString& thema) {
  const QStringList zeilen = Textdatei::lesen(datei());
  const qsizetype anfang = thema.isEmpty() || thema == Ende ? -1 : zeilen.indexOf(thema);
  if (anfang < 0) return std::nullopt;
  qsizetype ende = zeilen.indexOf(Ende, anfang + 1);
  if (ende < 0) ende = zeilen.size();
  return zeilen.mid(anfang + 1, ende - anfang - 1);
}

QString alsHtml(const QStringList& zeilen) {
  HtmlBauer bauer;
  for (qsizetype i = 0; i < zeilen.size(); ++i) {
    const QString& zeile = zeilen[i];
    if (istUnterstrichen(zeilen, i, u'=')) {
      bauer.überschrift(zeile.trimmed(), "h2");
      ++i;
    } else if (istUnterstrichen(zeilen, i, u'-')) {
      bauer.überschrift(zeile.trimmed(), "h3");
      ++i;
    } else if (zeile.trimmed().isEmpty()) {
      bauer.schließen();
    } else if (zeile.startsWith(QStringLiteral("- "))) {
      bauer.zeile(zeile.mid(2).trimmed(), "ul");
    } else if (zeile.startsWith(QStringLiteral("  "))) {
      bauer.zeile(zeile, "pre");
    } else {
      bauer.zeile(zeile.trimmed(), "p");
    }
  }
  bauer.schließen();
  return bauer.html();
}

QStringList ohneAbschnitt(const QString& thema) {
  return {QStringLiteral("Keine Hilfe vorhanden"),
          QStringLiteral("====="),
          QString(),
          thema.isEmpty()
              ? QStringLiteral("Es wurde kein Hilfethema angegeben.")
              : QStringLiteral("In der Hilfedatei gibt es zum Thema %1 noch keinen Abschnitt.")
                    .arg(thema),
          QString(),
          QStringLiteral("Einen Überblick finden Sie im Hauptmenü unter Hilfe.")};
}

}  // namespace Hilfe
