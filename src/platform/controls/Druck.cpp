#include "platform/controls/Druck.h"

#include <QDir>
#include <QFile>
#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetricsF>
#include <QLineEdit>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>
#include <algorithm>
#include <array>
#include <cmath>

#include "platform/controls/Dateidialoge.h"
#include "platform/controls/Ereignis.h"
#include "platform/files/Textdatei.h"

namespace {

constexpr double RandMm = 10;  // of the paper; most printers can't print closer to the edge

bool inDatei(const QPrinter& drucker) { return !drucker.outputFileName().isEmpty(); }

[[noreturn]] void fehlgeschlagen(const QPrinter& drucker) {
  if (inDatei(drucker))
    throw Dateifehler(QStringLiteral("Die Datei %1 kann nicht geschrieben werden. Bitte prüfen "
                                     "Sie, ob in den Ordner geschrieben werden darf und ob auf dem "
                                     "Datenträger noch Platz ist.")
                          .arg(QDir::toNativeSeparators(drucker.outputFileName())));
  throw Dateifehler(QStringLiteral("Auf dem Drucker %1 kann nicht gedruckt werden. Bitte prüfen "
                                   "Sie, ob er eingeschaltet und angeschlossen ist.")
                        .arg(drucker.printerName()));
}

// The file's writer doesn't tell of a full disk; a PDF file that is whole ends with its mark.
bool dateiVollständig(const QPrinter& drucker) {
  if (!inDatei(drucker) || drucker.outputFormat() != QPrinter::PdfFormat) return true;
  constexpr qint64 Ende = 64;
  QFile datei(drucker.outputFileName());
  if (!datei.open(QIODevice::ReadOnly)) return false;
  datei.seek(std::max<qint64>(0, datei.size() - Ende));
  return datei.readAll().contains("%%EOF");
}

// By its letters: not every fixed-pitch font says of itself that it is one.
bool gleichBreit(const QFontMetricsF& masse) {
  constexpr double Spiel = 0.01;
  return std::abs(masse.horizontalAdvance(QStringLiteral("iiii")) -
                  masse.horizontalAdvance(QStringLiteral("WWWW"))) < Spiel;
}

// In a fixed-pitch font the width is counted, in others it is measured.
std::function<qsizetype(QStringView)> passend(const QFontMetricsF& masse, double breite) {
  if (gleichBreit(masse)) {
    constexpr int Probe = 100;
    const double zeichen = masse.horizontalAdvance(QString(Probe, u'0')) / Probe;
    const auto anzahl = static_cast<qsizetype>(breite / std::max(zeichen, 1.0));
    return [anzahl](QStringView text) { return std::min(anzahl, text.size()); };
  }
  return [masse, breite](QStringView text) {
    qsizetype passt = 0;
    qsizetype zuViel = text.size() + 1;
    if (masse.horizontalAdvance(text.toString()) <= breite) return text.size();
    while (zuViel - passt > 1) {
      const qsizetype mitte = (passt + zuViel) / 2;
      if (masse.horizontalAdvance(text.left(mitte).toString()) <= breite)
        passt = mitte;
      else
        zuViel = mitte;
    }
    return passt;
  };
}

// A family that several makers offer is listed once for each, with the maker in brackets.
QString ohneHersteller(const QString& familie) {
  return familie.section(QStringLiteral(" ["), 0, 0);
}

// Real families; aliases like "Monospace" stand for another one.
bool istDruckbar(const QString& familie) {
  return !QFontDatabase::isPrivateFamily(familie) && QFontDatabase::isScalable(familie) &&
         ohneHersteller(QFontInfo(QFont(familie)).family()) == ohneHersteller(familie);
}

// Of the dialog's page range what the document has; from counts from 0, to is behind the last.
std::pair<qsizetype, qsizetype> bereich(const QPrinter& drucker, qsizetype seiten) {
  if (drucker.printRange() != QPrinter::PageRange || drucker.fromPage() < 1) return {0, seiten};
  return {std::min<qsizetype>(drucker.fromPage() - 1, seiten),
          std::min<qsizetype>(std::max(drucker.toPage(), drucker.fromPage()), seiten)};
}

// The toolkit's own dialog has a field for the file: it proposes one among the user's documents.
// Other systems' dialogs ask for it themselves.
void dateiVorschlagen(const QPrintDialog& dialog, const QString& titel) {
  auto* feld = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
  if (feld == nullptr) return;
  QString name = titel;
  name.replace(u'/', u' ');
  feld->setText(QDir(Dateidialoge::dokumente()).filePath(name + QStringLiteral(".pdf")));
}

using Seitenmaler = std::function<void(QPainter&)>;

QList<Seitenmaler> textseiten(QPrinter& drucker, const Druck::Auftrag& auftrag) {
  const QFontMetricsF masse(auftrag.schrift, &drucker);
  Druck::Satzspiegel spiegel;
  spiegel.zeilen = std::max(1, static_cast<int>(drucker.height() / masse.lineSpacing()));
  spiegel.passend = passend(masse, drucker.width());
  QList<Seitenmaler> seiten;
  for (const QStringList& zeilen : auftrag.umbruch(spiegel))
    seiten.append([zeilen, masse, schrift = auftrag.schrift](QPainter& maler) {
      maler.setFont(schrift);
      double y = masse.ascent();
      for (const QString& zeile : zeilen) {
        maler.drawText(QPointF(0, y), zeile);
        y += masse.lineSpacing();
      }
    });
  return seiten;
}

}  // namespace

namespace Druck {

QStringList schriften(bool feste) {
  static const std::array<QStringList, 2> alle = [] {
    std::array<QStringList, 2> gefunden;
    for (const QString& familie : QFontDatabase::families(QFontDatabase::Latin)) {
      if (!istDruckbar(familie)) continue;
      const QString name = ohneHersteller(familie);
      QStringList& liste = gefunden[gleichBreit(QFontMetricsF(QFont(name))) ? 1 : 0];
      if (!liste.contains(name)) liste += name;
    }
    return gefunden;
  }();
  return alle[feste ? 1 : 0];
}

void einrichten(QPrinter& drucker, const Auftrag& auftrag) {
  drucker.setDocName(auftrag.titel);
  drucker.setCreator(QStringLiteral("TOVA 2.0"));
  drucker.setPageSize(QPageSize(QPageSize::A4));
  drucker.setPageOrientation(auftrag.quer ? QPageLayout::Landscape : QPageLayout::Portrait);
  drucker.setPageMargins(QMarginsF(RandMm, RandMm, RandMm, RandMm), QPageLayout::Millimeter);
}

QRectF seite(QPainter& maler) {
  constexpr double JeZoll = 96;
  const QPaintDevice& blatt = *maler.device();
  const double x = blatt.logicalDpiX() / JeZoll;
  const double y = blatt.logicalDpiY() / JeZoll;
  maler.scale(x, y);
  return {0, 0, blatt.width() / x, blatt.height() / y};
}

void ausgeben(QPrinter& drucker, const Auftrag& auftrag) {
  const Ereignis::Sanduhr sanduhr;
  QPainter maler;
  if (!maler.begin(&drucker)) fehlgeschlagen(drucker);
  const QList<Seitenmaler> seiten =
      auftrag.malen ? QList<Seitenmaler>{[&](QPainter& m) { auftrag.malen(m, seite(m)); }}
                    : textseiten(drucker, auftrag);

  const auto [von, bis] = bereich(drucker, seiten.size());
  const int exemplare = drucker.supportsMultipleCopies() ? 1 : std::max(1, drucker.copyCount());
  bool erste = true;
  for (int exemplar = 0; exemplar < exemplare; ++exemplar)
    for (qsizetype nummer = von; nummer < bis; ++nummer) {
      if (!erste && !drucker.newPage()) fehlgeschlagen(drucker);
      erste = false;
      maler.save();
      seiten[nummer](maler);
      maler.restore();
    }
  if (!maler.end() || drucker.printerState() == QPrinter::Error || !dateiVollständig(drucker))
    fehlgeschlagen(drucker);
}

bool drucken(const Auftrag& auftrag, QWidget* über) {
  QPrinter drucker(QPrinter::HighResolution);
  einrichten(drucker, auftrag);
  QPrintDialog dialog(&drucker, über);
  dialog.setObjectName(QStringLiteral("druckdialog"));
  dialog.setWindowTitle(QStringLiteral("Drucken"));
  dateiVorschlagen(dialog, auftrag.titel);
  if (dialog.exec() != QDialog::Accepted) return false;
  ausgeben(drucker, auftrag);
  return true;
}

}  // namespace Druck
