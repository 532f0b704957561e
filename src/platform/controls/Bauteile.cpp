#include "platform/controls/Bauteile.h"

#include <QApplication>
#include <QBoxLayout>
#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>

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

QWidget* fensterDarunter(QWidget* ueber) {
  return ueber != nullptr ? ueber->window() : QApplication::activeWindow();
}

}  // namespace Bauteile
