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

QPushButton* okUndSchliessen(QDialog* dialog, QBoxLayout* seite) {
  auto* knoepfe = new QDialogButtonBox(dialog);
  auto* ok = knoepfe->addButton(QStringLiteral("&OK"), QDialogButtonBox::AcceptRole);
  ok->setObjectName(QStringLiteral("ok"));
  ok->setDefault(true);
  auto* schliessen = knoepfe->addButton(QStringLiteral("&Schließen"), QDialogButtonBox::RejectRole);
  schliessen->setObjectName(QStringLiteral("schliessen"));
  schliessen->setAutoDefault(false);
  seite->addWidget(knoepfe);
  QObject::connect(knoepfe, &QDialogButtonBox::accepted, dialog, &QDialog::accept);
  QObject::connect(knoepfe, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  return ok;
}

QLabel* ueberschrift(const QString& text) {
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

void fenstergroesse(QWidget* fenster, int zeichen, int zeilen) {
  const QFontMetrics schrift = fenster->fontMetrics();
  const QSize wunsch(zeichen * schrift.averageCharWidth(), zeilen * schrift.height());
  const QSize rahmenUndLeiste(20, 60);  // around the window and at the edge of the screen
  fenster->resize(wunsch.expandedTo(fenster->minimumSizeHint())
                      .boundedTo(fenster->screen()->availableSize() - rahmenUndLeiste));
}

QWidget* fensterDarunter(QWidget* ueber) {
  QWidget* fenster = ueber != nullptr ? ueber->window() : QApplication::activeWindow();
  return fenster != nullptr && fenster->isVisible() ? fenster : nullptr;
}

}  // namespace Bauteile
