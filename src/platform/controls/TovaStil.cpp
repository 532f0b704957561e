#include "platform/controls/TovaStil.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTableView>

#include "platform/controls/Gestaltung.h"

namespace {

constexpr int Zellenrand = 5;
constexpr int Kopfrand = 6;

void rahmen(const QRect& fläche, const QColor& farbe, double breite, QPainter* maler) {
  maler->save();
  maler->setRenderHint(QPainter::Antialiasing);
  maler->setBrush(Qt::NoBrush);
  maler->setPen(QPen(farbe, breite));
  const double innen = breite / 2;
  maler->drawRoundedRect(QRectF(fläche).adjusted(innen, innen, -innen, -innen), 2.5, 2.5);
  maler->restore();
}

bool hatRahmen(const QStyleOption* option) {
  const auto* feld = qstyleoption_cast<const QStyleOptionFrame*>(option);
  return feld == nullptr || feld->lineWidth > 0;
}

// Fusion darkens its lines from the window's colour, which leaves nothing to see on a dark ground.
void linieImDunkeln(QStyle::PrimitiveElement element, const QStyleOption* option, QPainter* maler) {
  const QColor linie(0x7a, 0x72, 0x66);
  switch (element) {
    case QStyle::PE_PanelLineEdit:
      if (hatRahmen(option)) rahmen(option->rect, linie, 1, maler);
      break;
    case QStyle::PE_IndicatorCheckBox:
      rahmen(option->rect, linie, 1, maler);
      break;
    case QStyle::PE_IndicatorRadioButton:
      maler->save();
      maler->setRenderHint(QPainter::Antialiasing);
      maler->setBrush(Qt::NoBrush);
      maler->setPen(QPen(linie, 1));
      maler->drawEllipse(QRectF(option->rect).adjusted(1, 1, -1, -1));
      maler->restore();
      break;
    default:
      break;
  }
}

// Whether a cell or a heading of a table stands on the right, as numbers do.
bool stehtRechts(const QStyleOption* option, const QWidget* fenster) {
  if (const auto* kopf = qstyleoption_cast<const QStyleOptionHeader*>(option))
    return kopf->orientation == Qt::Horizontal && kopf->textAlignment & Qt::AlignRight;
  const auto* zelle = qstyleoption_cast<const QStyleOptionViewItem*>(option);
  return zelle != nullptr && zelle->displayAlignment & Qt::AlignRight &&
         qobject_cast<const QTableView*>(fenster) != nullptr;
}

// A menu entry that begins with "& " is measured without the sign and cut with it.
bool mnemonikVorBlank(QStyle::ContentsType inhalt, const QStyleOption* option) {
  const auto* eintrag = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  return inhalt == QStyle::CT_MenuItem && eintrag != nullptr &&
         eintrag->text.contains(QLatin1String("& "));
}

// A disc with "i" or "?".
QIcon meldungssymbol(const QString& zeichen) {
  const QPalette farben = QApplication::palette();
  QIcon symbol;
  for (const int kante : {16, 24, 32, 48, 64, 96}) {
    QPixmap bild(kante, kante);
    bild.fill(Qt::transparent);
    QPainter maler(&bild);
    maler.setRenderHint(QPainter::Antialiasing);
    maler.setPen(Qt::NoPen);
    maler.setBrush(farben.color(QPalette::Active, QPalette::Highlight));
    maler.drawEllipse(QRectF(1, 1, kante - 2, kante - 2));
    QFont schrift = QApplication::font();
    schrift.setPixelSize(kante * 6 / 10);
    schrift.setBold(true);
    maler.setFont(schrift);
    maler.setPen(farben.color(QPalette::Active, QPalette::HighlightedText));
    maler.drawText(QRect(0, 0, kante, kante), Qt::AlignCenter, zeichen);
    maler.end();
    symbol.addPixmap(bild);
  }
  return symbol;
}

}  // namespace

TovaStil::TovaStil() : QProxyStyle(QStyleFactory::create(QStringLiteral("Fusion"))) {}

void TovaStil::polish(QWidget* fenster) {
  QProxyStyle::polish(fenster);
  if (!fenster->inherits("QTipLabel")) return;
  if (auto* tipp = qobject_cast<QLabel*>(fenster)) tipp->setTextFormat(Qt::PlainText);
}

void TovaStil::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* maler,
                             const QWidget* fenster) const {
  const QColor akzent = option->palette.color(QPalette::Active, QPalette::Highlight);
  if (element == PE_FrameFocusRect) {
    rahmen(option->rect, akzent, 2, maler);
    return;
  }
  QProxyStyle::drawPrimitive(element, option, maler, fenster);
  if (Gestaltung::istDunkel(option->palette)) linieImDunkeln(element, option, maler);
  const bool eingabe = element == PE_PanelLineEdit && hatRahmen(option);
  if ((eingabe || element == PE_PanelButtonCommand) && option->state & State_HasFocus)
    rahmen(option->rect, akzent, 2, maler);
}

int TovaStil::zahlenrand(const QFontMetrics& schrift) { return schrift.horizontalAdvance(u'0'); }

void TovaStil::drawControl(ControlElement element, const QStyleOption* option, QPainter* maler,
                           const QWidget* fenster) const {
  if (element != CE_HeaderLabel || !stehtRechts(option, fenster)) {
    QProxyStyle::drawControl(element, option, maler, fenster);
    return;
  }
  const auto enger = [&](auto kopf) {
    kopf.rect.adjust(0, 0, -zahlenrand(kopf.fontMetrics), 0);
    QProxyStyle::drawControl(element, &kopf, maler, fenster);
  };
  // The option in its newer form or, as the style itself passes it on, in its first.
  if (const auto* neuer = qstyleoption_cast<const QStyleOptionHeaderV2*>(option))
    enger(*neuer);
  else
    enger(*qstyleoption_cast<const QStyleOptionHeader*>(option));
}

QRect TovaStil::subElementRect(SubElement element, const QStyleOption* option,
                               const QWidget* fenster) const {
  const QRect fläche = QProxyStyle::subElementRect(element, option, fenster);
  if (element != SE_ItemViewItemText || !stehtRechts(option, fenster)) return fläche;
  return fläche.adjusted(0, 0, -zahlenrand(option->fontMetrics), 0);
}

QSize TovaStil::sizeFromContents(ContentsType inhalt, const QStyleOption* option,
                                 const QSize& größe, const QWidget* fenster) const {
  const QSize ganz = QProxyStyle::sizeFromContents(inhalt, option, größe, fenster);
  if (mnemonikVorBlank(inhalt, option))
    return ganz + QSize(option->fontMetrics.horizontalAdvance(u'&'), 0);
  if ((inhalt != CT_HeaderSection && inhalt != CT_ItemViewItem) || !stehtRechts(option, fenster))
    return ganz;
  return ganz + QSize(zahlenrand(option->fontMetrics), 0);
}

int TovaStil::pixelMetric(PixelMetric mass, const QStyleOption* option,
                          const QWidget* fenster) const {
  if (mass == PM_FocusFrameHMargin && qobject_cast<const QAbstractItemView*>(fenster) != nullptr)
    return Zellenrand;
  if (mass == PM_HeaderMargin) return Kopfrand;
  return QProxyStyle::pixelMetric(mass, option, fenster);
}

int TovaStil::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* fenster,
                        QStyleHintReturn* zurück) const {
  if (hint == SH_UnderlineShortcut) return 1;
  if (hint == SH_ToolTip_WakeUpDelay) return 500;
  return QProxyStyle::styleHint(hint, option, fenster, zurück);
}

QIcon TovaStil::standardIcon(StandardPixmap symbol, const QStyleOption* option,
                             const QWidget* fenster) const {
  if (symbol == SP_MessageBoxInformation) return meldungssymbol(QStringLiteral("i"));
  if (symbol == SP_MessageBoxQuestion) return meldungssymbol(QStringLiteral("?"));
  return QProxyStyle::standardIcon(symbol, option, fenster);
}
