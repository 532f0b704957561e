#include "platform/controls/Diagramm.h"

#include <QBuffer>
#include <QFileInfo>
#include <QFontInfo>
#include <QPainter>
#include <QPdfWriter>
#include <QSvgGenerator>
#include <algorithm>

#include "platform/controls/Diagrammbalken.h"
#include "platform/controls/Diagrammlegende.h"
#include "platform/controls/Diagrammtorte.h"
#include "platform/controls/Druck.h"
#include "platform/files/Dateischreiber.h"

namespace {

constexpr double Bildschärfe = 2;

// A font that doesn't follow the resolution of what it is drawn on.
QFont inPunkten(const QWidget* control) {
  QFont schrift = control->font();
  schrift.setPixelSize(std::max(1, QFontInfo(schrift).pixelSize()));
  return schrift;
}

// One line, cut where it is longer than the field.
void maleZeile(QPainter& maler, const QRectF& feld, Qt::Alignment lage, const QString& text) {
  const QFontMetricsF masse(maler.font());
  maler.drawText(feld, static_cast<int>(lage),
                 masse.elidedText(text, Qt::ElideRight, feld.width()));
}

}  // namespace

Diagramm::Diagramm(QWidget* eltern) : QWidget(eltern) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Diagramm::setInhalt(const Diagramminhalt& inhalt) {
  m_inhalt = inhalt;
  setAccessibleName(inhalt.titel);
  QStringList punkte;  // what stands in the legend, for who can't see it
  for (int i = 0; i < inhalt.punkte.size(); ++i)
    punkte += (inhalt.punkte[i].name + u' ' + inhalt.werttext(i)).trimmed();
  setAccessibleDescription(punkte.join(QStringLiteral("; ")));
  update();
}

void Diagramm::malen(QPainter& maler, const QRectF& feld) const {
  constexpr double Titelgröße = 1.25;
  constexpr double Legendenbreite = 0.5;  // of the whole, at most
  QFont schrift = inPunkten(this);
  const double zeile = QFontMetricsF(schrift).height();
  QRectF innen = feld.marginsRemoved({zeile, zeile / 2, zeile, zeile / 2});

  QFont groß = schrift;
  groß.setBold(true);
  groß.setPixelSize(static_cast<int>(schrift.pixelSize() * Titelgröße));
  const double titelhöhe = QFontMetricsF(groß).height();
  maler.setRenderHint(QPainter::Antialiasing);
  maler.fillRect(feld, Qt::white);
  maler.setPen(Qt::black);
  maler.setFont(groß);
  maleZeile(maler, QRectF(innen.topLeft(), QSizeF(innen.width(), titelhöhe)), Qt::AlignCenter,
            m_inhalt.titel);
  maler.setFont(schrift);
  maleZeile(maler, QRectF(innen.left(), innen.bottom() - zeile, innen.width(), zeile),
            Qt::AlignRight | Qt::AlignVCenter, m_inhalt.fuß);
  innen.adjust(0, titelhöhe + zeile / 2, 0, -1.5 * zeile);

  const bool balken = m_inhalt.art == Diagramminhalt::Art::Balken;
  if (!balken || !Diagrammbalken::nennenAlle(innen, m_inhalt, schrift)) {
    const Diagrammlegende legende(m_inhalt, schrift,
                                  {innen.width() * Legendenbreite, innen.height()});
    const QSizeF größe = legende.größe();
    legende.malen(maler, {innen.right() - größe.width(),
                          innen.top() + (innen.height() - größe.height()) / 2});
    innen.setRight(innen.right() - größe.width() - (größe.isEmpty() ? 0 : zeile));
  }
  if (balken)
    Diagrammbalken::malen(maler, innen, m_inhalt, schrift);
  else
    Diagrammtorte::malen(maler, innen, m_inhalt, schrift);
}

void Diagramm::paintEvent(QPaintEvent* /*event*/) {
  QPainter maler(this);
  malen(maler, rect());
}

QImage Diagramm::bild() const {
  QImage bild(size() * Bildschärfe, QImage::Format_RGB32);
  QPainter maler(&bild);
  maler.scale(Bildschärfe, Bildschärfe);
  malen(maler, rect());
  return bild;
}

QByteArray Diagramm::alsPng() const {
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  bild().save(&bytes, "PNG");
  return bytes.data();
}

QByteArray Diagramm::alsSvg() const {
  QBuffer bytes;
  QSvgGenerator zeichnung;
  zeichnung.setOutputDevice(&bytes);
  zeichnung.setSize(size());
  zeichnung.setViewBox(rect());
  zeichnung.setTitle(m_inhalt.titel);
  QPainter maler(&zeichnung);
  malen(maler, rect());
  maler.end();
  return bytes.data();
}

QByteArray Diagramm::alsPdf() const {
  constexpr double RandMm = 10;
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  QPdfWriter blatt(&bytes);
  blatt.setTitle(m_inhalt.titel);
  blatt.setCreator(QStringLiteral("TOVA 2.0"));
  blatt.setPageSize(QPageSize(QPageSize::A4));
  blatt.setPageOrientation(QPageLayout::Landscape);
  blatt.setPageMargins(QMarginsF(RandMm, RandMm, RandMm, RandMm), QPageLayout::Millimeter);
  QPainter maler(&blatt);
  malen(maler, Druck::seite(maler));
  maler.end();
  return bytes.data();
}

void Diagramm::speichern(const QString& pfad) const {
  const QString endung = QFileInfo(pfad).suffix().toLower();
  const QByteArray bytes = endung == u"svg" ? alsSvg() : endung == u"pdf" ? alsPdf() : alsPng();
  Dateischreiber datei(pfad);
  datei.puffer().assign(bytes.constData(), static_cast<size_t>(bytes.size()));
  datei.fertig();
}

QSize Diagramm::sizeHint() const { return fontMetrics().height() * QSize(50, 35); }

QSize Diagramm::minimumSizeHint() const { return fontMetrics().height() * QSize(16, 12); }
