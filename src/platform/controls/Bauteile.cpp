#include "platform/controls/Bauteile.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>

namespace Bauteile {

QPushButton* knopf(const QString& text, const QString& name, const QString& hinweis) {
  auto* neu = benannt(new QPushButton(text), name);
  neu->setToolTip(hinweis);
  return neu;
}

QPushButton* knopfOhneEnter(const QString& text, const QString& name) {
  QPushButton* neu = knopf(text, name);
  neu->setAutoDefault(false);
  return neu;
}

QPushButton* okUndSchließen(QDialog* dialog, QBoxLayout* seite) {
  auto* knöpfe = new QDialogButtonBox(dialog);
  auto* ok = knöpfe->addButton(QStringLiteral("&OK"), QDialogButtonBox::AcceptRole);
  ok->setObjectName(QStringLiteral("ok"));
  ok->setDefault(true);
  auto* schließen = knöpfe->addButton(QStringLiteral("&Schließen"), QDialogButtonBox::RejectRole);
  schließen->setObjectName(QStringLiteral("schliessen"));
  schließen->setAutoDefault(false);
  seite->addWidget(knöpfe);
  QObject::connect(knöpfe, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
  QObject::connect(knöpfe, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  return ok;
}

QLabel* überschrift(const QString& text) {
  auto* label = new QLabel(text);
  QFont schrift = label->font();
  schrift.setBold(true);
  label->setFont(schrift);
  return label;
}

QWidget* reiterseite(QWidget* inhalt) {
  auto* seite = new QWidget;
  auto* spalte = new QVBoxLayout(seite);
  spalte->addWidget(inhalt);
  return seite;
}

QWidget* leiste(const QList<QWidget*>& links, const QList<QWidget*>& rechts) {
  auto* streifen = new QWidget;
  auto* zeile = new QHBoxLayout(streifen);
  zeile->setContentsMargins(0, 0, 0, 0);
  for (QWidget* control : links) zeile->addWidget(control);
  zeile->addStretch(1);
  for (QWidget* control : rechts) zeile->addWidget(control);
  return streifen;
}

QWidget* untereinander(const QList<Teil>& teile) {
  auto* seite = new QWidget;
  auto* spalte = new QVBoxLayout(seite);
  spalte->setContentsMargins(0, 0, 0, 0);
  for (const Teil& teil : teile) spalte->addWidget(teil.inhalt, teil.anteil);
  return seite;
}

QSplitter* teiler(const QString& name, const Teilseite& links, const Teilseite& rechts) {
  auto* neu = benannt(new QSplitter, name);
  neu->addWidget(links.inhalt);
  neu->addWidget(rechts.inhalt);
  neu->setStretchFactor(0, links.anteil);
  neu->setStretchFactor(1, rechts.anteil);
  neu->setChildrenCollapsible(false);
  neu->setSizes({links.breite, rechts.breite});
  neu->setHandleWidth(2 * neu->fontMetrics().averageCharWidth());
  return neu;
}

void tabfolge(const QList<QWidget*>& folge) {
  for (qsizetype i = 1; i < folge.size(); ++i) QWidget::setTabOrder(folge[i - 1], folge[i]);
}

void fenstergröße(QWidget* fenster, int zeichen, int zeilen) {
  const QFontMetrics schrift = fenster->fontMetrics();
  const QSize wunsch(zeichen * schrift.averageCharWidth(), zeilen * schrift.height());
  const QSize rahmenUndLeiste(20, 60);  // around the window and at the edge of the screen
  fenster->resize(wunsch.expandedTo(fenster->sizeHint())
                      .boundedTo(fenster->screen()->availableSize() - rahmenUndLeiste));
}

QWidget* fensterDarunter(QWidget* über) {
  QWidget* fenster = über != nullptr ? über->window() : QApplication::activeWindow();
  return fenster != nullptr && fenster->isVisible() ? fenster : nullptr;
}

}  // namespace Bauteile
