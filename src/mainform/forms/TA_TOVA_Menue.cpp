#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include "colonies/forms/Markieren.h"
#include "colonies/forms/TV_Neues_Volk.h"
#include "mainform/Aktualisierung.h"
#include "mainform/forms/Formen.h"
#include "mainform/forms/Symbol.h"
#include "mainform/forms/TA_TOVA.h"
#include "planning/forms/Terminlauf.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"
#include "platform/controls/Oeffnen.h"

void TA_TOVA::menüsBauen() {
  for (const Menü::Menü& vorlage : Menü::menüs()) {
    QMenu* menü = menuBar()->addMenu(vorlage.titel);
    menü->setObjectName(vorlage.name);
    menü->menuAction()->setObjectName(vorlage.name);
    menü->installEventFilter(this);
    m_menüs << menü;
    for (const Menü::Eintrag& eintrag : vorlage.einträge) {
      if (eintrag.ziel == Menü::Ziel::Beenden) menü->addSeparator();
      QAction* aktion = menü->addAction(eintrag.titel);
      aktion->setObjectName(eintrag.name);
      m_aktionen[eintrag.name] = aktion;
      Ereignis::wenn(aktion, &QAction::triggered, this,
                     [this, name = eintrag.name] { wählen(name); });
    }
  }
}

void TA_TOVA::leisteBauen() {
  for (QToolBar*& leiste : m_mleiste) {
    leiste = addToolBar(QStringLiteral("Werkzeugleiste"));
    leiste->setMovable(false);
    leiste->setContextMenuPolicy(Qt::PreventContextMenu);
  }
  m_mleiste[0]->setObjectName(QStringLiteral("mleiste"));
  m_mleiste[1]->setObjectName(QStringLiteral("mleiste_fortsetzung"));
  QFont klein = font();
  klein.setPointSizeF(klein.pointSizeF() * 0.85);
  QToolBar* leiste = m_mleiste[0];
  for (const Menü::Taste& taste : Menü::tasten()) {
    if (taste.umbruch) leiste = m_mleiste[1];
    if (taste.neueGruppe) {
      QAction* trenner = leiste->addSeparator();
      if (taste.umbruch) m_umbruchtrenner = trenner;
    }
    const QString hinweis = Menü::ohneMnemonik(Menü::eintrag(taste.eintrag).titel);
    QAction* aktion = leiste->addAction(symbol(taste.symbol), taste.kurztext);
    aktion->setObjectName(taste.name);
    aktion->setToolTip(hinweis);
    Ereignis::wenn(aktion, &QAction::triggered, this,
                   [this, name = taste.eintrag] { wählen(name); });
    m_tasten << aktion;
    QWidget* knopf = leiste->widgetForAction(aktion);
    knopf->setObjectName(taste.name);
    knopf->setAccessibleName(hinweis);
    knopf->setFont(klein);
  }
}

// Words under the symbols where the window is wide enough for them, in one row or, as on most
// screens, in two; else larger symbols alone.
void TA_TOVA::leisteAnpassen() {
  const int höhe = fontMetrics().height();
  const auto kleiden = [&](Qt::ToolButtonStyle stil, double symbolgröße) {
    for (QToolBar* leiste : m_mleiste) {
      leiste->setIconSize(QSize(höhe, höhe) * symbolgröße);
      leiste->setToolButtonStyle(stil);
    }
  };
  const auto breite = [&](size_t reihe) { return m_mleiste[reihe]->sizeHint().width(); };
  m_umbruchtrenner->setVisible(true);
  kleiden(Qt::ToolButtonTextUnderIcon, 1.5);
  if (std::max(breite(0), breite(1)) > width()) kleiden(Qt::ToolButtonIconOnly, 1.75);
  const bool umbruch = breite(0) + breite(1) > width();
  m_umbruchtrenner->setVisible(!umbruch);
  if (umbruch == toolBarBreak(m_mleiste[1])) return;
  if (umbruch)
    insertToolBarBreak(m_mleiste[1]);
  else
    removeToolBarBreak(m_mleiste[1]);
}

void TA_TOVA::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  leisteAnpassen();
}

void TA_TOVA::popupBauen() {
  m_popupliste = new QMenu(this);
  m_popupliste->setObjectName(QStringLiteral("popupliste"));
  for (int i = 0; i < Menü::popup().size(); ++i) {
    const Menü::Popupzeile& zeile = Menü::popup()[i];
    QAction* aktion = zeile.eintrag.isEmpty() ? m_popupliste->addSeparator()
                                              : m_popupliste->addAction(zeile.titel);
    aktion->setObjectName(QStringLiteral("popzeile_%1").arg(i));
    Ereignis::wenn(aktion, &QAction::triggered, this, [this, i] { popupWählen(i); });
    m_popzeile << aktion;
  }
  m_datali->setContextMenuPolicy(Qt::CustomContextMenu);
  Ereignis::wenn(m_datali, &QWidget::customContextMenuRequested, this, [this](const QPoint& ort) {
    m_popupliste->popup(m_datali->viewport()->mapToGlobal(ort));
  });
}

void TA_TOVA::popupWählen(int index) {
  if (index >= 1 && markierteZeilen().isEmpty()) {
    Meldungen::Hinweis(Menü::nichtsMarkiertText(), this);
    return;
  }
  wählen(Menü::popup()[index].eintrag);
}

void TA_TOVA::befehleAnpassen() {
  const bool zeileDa = aktuelleZeile() >= 0;
  const bool listeDa = zeilen() > 0;
  for (const Menü::Menü& menü : Menü::menüs())
    for (const Menü::Eintrag& eintrag : menü.einträge)
      m_aktionen[eintrag.name]->setEnabled(Menü::wählbar(eintrag.ziel, Formen::gibtEs(eintrag.name),
                                                         eintrag.regel, zeileDa, listeDa));
  for (int i = 0; i < m_tasten.size(); ++i) {
    const Menü::Taste& taste = Menü::tasten()[i];
    m_tasten[i]->setEnabled(Menü::wählbar(Menü::eintrag(taste.eintrag).ziel,
                                          Formen::gibtEs(taste.eintrag), taste.regel, zeileDa,
                                          listeDa));
  }
  for (int i = 1; i < m_popzeile.size(); ++i) m_popzeile[i]->setEnabled(zeileDa);
}

namespace {

void aktualisierungLaden(QWidget* fenster) {
  if (!Meldungen::Frage(Aktualisierung::ladenFrage(), Meldungen::Vorgabe::Ja, fenster)) return;
  const QString adresse = Aktualisierung::setupAdresse();
  if (adresse.isEmpty())
    Meldungen::Hinweis(Aktualisierung::keineAdresseText(), fenster);
  else if (!Öffnen::adresse(adresse))
    Meldungen::Hinweis(Aktualisierung::nichtGeöffnetText(adresse), fenster);
}

}  // namespace

void TA_TOVA::wählen(const QString& eintrag) { ausführen(Menü::eintrag(eintrag)); }

void TA_TOVA::ausführen(const Menü::Eintrag& eintrag) {
  switch (eintrag.ziel) {
    case Menü::Ziel::Form:
      Formen::zeigen(this, eintrag.name);
      break;
    case Menü::Ziel::VolkLoeschen:
      volkLöschenMitFrage(this);
      break;
    case Menü::Ziel::VölkerSelektieren:
      völkerSelektieren(this);
      break;
    case Menü::Ziel::SelektierteMarkieren:
      selektierteMarkieren(this);
      break;
    case Menü::Ziel::MarkierteSelektieren:
      markierteSelektieren();
      break;
    case Menü::Ziel::Beenden:
      close();
      return;
    case Menü::Ziel::TermineSetzen:
      volkTermineSetzen(this);
      break;
    case Menü::Ziel::Internet:
      aktualisierungLaden(this);
      return;
    case Menü::Ziel::Komprimieren:
      komprimieren();
      return;
    case Menü::Ziel::Hilfe:
      Formen::hilfe(this, eintrag.wert);
      return;
  }
  aktivieren();
}

void TA_TOVA::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_F1) {
    QMainWindow::keyPressEvent(event);
    return;
  }
  Ereignis::ausführen(this, [this] { Formen::hilfe(this, objectName()); });
}

// F1 on an open menu shows that menu's topic.
bool TA_TOVA::eventFilter(QObject* objekt, QEvent* event) {
  if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_F1) {
    for (const Menü::Menü& vorlage : Menü::menüs()) {
      if (vorlage.name != objekt->objectName()) continue;
      static_cast<QMenu*>(objekt)->close();
      Ereignis::ausführen(this, [&] { Formen::hilfe(this, vorlage.hilfethema); });
      return true;
    }
  }
  return QMainWindow::eventFilter(objekt, event);
}
