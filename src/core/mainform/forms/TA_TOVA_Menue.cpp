#include <QHelpEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include "colonies/forms/Markieren.h"
#include "colonies/forms/TV_Neues_Volk.h"
#include "core/mainform/Aktualisierung.h"
#include "core/mainform/forms/Symbol.h"
#include "core/mainform/forms/TA_TOVA.h"
#include "planning/forms/Terminlauf.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"
#include "platform/controls/Oeffnen.h"

void TA_TOVA::menuesBauen() {
  for (const Menue::Menue& vorlage : Menue::menues()) {
    QMenu* menue = menuBar()->addMenu(vorlage.titel);
    menue->setObjectName(vorlage.name);
    menue->menuAction()->setObjectName(vorlage.name);
    menue->installEventFilter(this);
    m_menues << menue;
    for (const Menue::Eintrag& eintrag : vorlage.eintraege) {
      if (eintrag.ziel == Menue::Ziel::Beenden) menue->addSeparator();
      QAction* aktion = menue->addAction(eintrag.titel);
      aktion->setObjectName(eintrag.name);
      m_aktionen[eintrag.name] = aktion;
      Ereignis::wenn(aktion, &QAction::triggered, this,
                     [this, name = eintrag.name] { waehlen(name); });
    }
  }
}

void TA_TOVA::leisteBauen() {
  for (QToolBar*& leiste : mleiste) {
    leiste = addToolBar(QStringLiteral("Werkzeugleiste"));
    leiste->setMovable(false);
    leiste->setContextMenuPolicy(Qt::PreventContextMenu);
  }
  mleiste[0]->setObjectName(QStringLiteral("mleiste"));
  mleiste[1]->setObjectName(QStringLiteral("mleiste_fortsetzung"));
  QFont klein = font();
  klein.setPointSizeF(klein.pointSizeF() * 0.85);
  QToolBar* leiste = mleiste[0];
  for (const Menue::Taste& taste : Menue::tasten()) {
    if (taste.umbruch) leiste = mleiste[1];
    if (taste.neueGruppe) {
      QAction* trenner = leiste->addSeparator();
      if (taste.umbruch) m_umbruchtrenner = trenner;
    }
    const QString hinweis = Menue::ohneMnemonik(Menue::eintrag(taste.eintrag).titel);
    QAction* aktion = leiste->addAction(symbol(taste.symbol), taste.kurztext);
    aktion->setObjectName(taste.name);
    aktion->setToolTip(hinweis);
    Ereignis::wenn(aktion, &QAction::triggered, this,
                   [this, name = taste.eintrag] { waehlen(name); });
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
  const int hoehe = fontMetrics().height();
  const auto kleiden = [&](Qt::ToolButtonStyle stil, double symbolgroesse) {
    for (QToolBar* leiste : mleiste) {
      leiste->setIconSize(QSize(hoehe, hoehe) * symbolgroesse);
      leiste->setToolButtonStyle(stil);
    }
  };
  const auto breite = [&](size_t reihe) { return mleiste[reihe]->sizeHint().width(); };
  m_umbruchtrenner->setVisible(true);
  kleiden(Qt::ToolButtonTextUnderIcon, 1.5);
  if (std::max(breite(0), breite(1)) > width()) kleiden(Qt::ToolButtonIconOnly, 1.75);
  const bool umbruch = breite(0) + breite(1) > width();
  m_umbruchtrenner->setVisible(!umbruch);
  if (umbruch == toolBarBreak(mleiste[1])) return;
  if (umbruch)
    insertToolBarBreak(mleiste[1]);
  else
    removeToolBarBreak(mleiste[1]);
}

void TA_TOVA::resizeEvent(QResizeEvent* event) {
  QMainWindow::resizeEvent(event);
  leisteAnpassen();
}

void TA_TOVA::popupBauen() {
  popupliste = new QMenu(this);
  popupliste->setObjectName(QStringLiteral("popupliste"));
  for (int i = 0; i < Menue::popup().size(); ++i) {
    const Menue::Popupzeile& zeile = Menue::popup()[i];
    QAction* aktion =
        zeile.eintrag.isEmpty() ? popupliste->addSeparator() : popupliste->addAction(zeile.titel);
    aktion->setObjectName(QStringLiteral("popzeile_%1").arg(i));
    Ereignis::wenn(aktion, &QAction::triggered, this, [this, i] { popupWaehlen(i); });
    popzeile << aktion;
  }
  datali->setContextMenuPolicy(Qt::CustomContextMenu);
  Ereignis::wenn(datali, &QWidget::customContextMenuRequested, this, [this](const QPoint& ort) {
    popupliste->popup(datali->viewport()->mapToGlobal(ort));
  });
}

void TA_TOVA::popupWaehlen(int index) {
  if (index >= 1 && markierteZeilen().isEmpty()) {
    Meldungen::Hinweis(Menue::nichtsMarkiertText(), this);
    return;
  }
  waehlen(Menue::popup()[index].eintrag);
}

void TA_TOVA::befehleAnpassen() {
  const bool zeileDa = aktuelleZeile() >= 0;
  const bool listeDa = zeilen() > 0;
  for (const Menue::Menue& menue : Menue::menues())
    for (const Menue::Eintrag& eintrag : menue.eintraege)
      m_aktionen[eintrag.name]->setEnabled(
          Menue::waehlbar(eintrag.ziel, eintrag.regel, zeileDa, listeDa));
  for (int i = 0; i < m_tasten.size(); ++i) {
    const Menue::Taste& taste = Menue::tasten()[i];
    m_tasten[i]->setEnabled(
        Menue::waehlbar(Menue::eintrag(taste.eintrag).ziel, taste.regel, zeileDa, listeDa));
  }
  for (int i = 1; i < popzeile.size(); ++i) popzeile[i]->setEnabled(zeileDa);
}

namespace {

void aktualisierungLaden(QWidget* fenster) {
  if (!Meldungen::Frage(Aktualisierung::ladenFrage(), Meldungen::Vorgabe::Ja, fenster)) return;
  const QString adresse = Aktualisierung::setupAdresse();
  if (adresse.isEmpty())
    Meldungen::Hinweis(Aktualisierung::keineAdresseText(), fenster);
  else if (!Oeffnen::adresse(adresse))
    Meldungen::Hinweis(Aktualisierung::nichtGeoeffnetText(adresse), fenster);
}

}  // namespace

void TA_TOVA::waehlen(const QString& eintrag) { ausfuehren(Menue::eintrag(eintrag)); }

void TA_TOVA::ausfuehren(const Menue::Eintrag& eintrag) {
  switch (eintrag.ziel) {
    case Menue::Ziel::NochNicht:
      return;
    case Menue::Ziel::NeuesVolk:
      m_formen.volk(QStringLiteral("Neu"));
      break;
    case Menue::Ziel::VolkAendern:
      m_formen.volk(QStringLiteral("Ändern"));
      break;
    case Menue::Ziel::VolkLoeschen:
      volkLoeschenMitFrage(this);
      break;
    case Menue::Ziel::VoelkerSelektieren:
      völkerSelektieren(this);
      break;
    case Menue::Ziel::SelektierteMarkieren:
      selektierteMarkieren(this);
      break;
    case Menue::Ziel::MarkierteSelektieren:
      markierteSelektieren();
      break;
    case Menue::Ziel::Beenden:
      close();
      return;
    case Menue::Ziel::Eingabe:
      m_formen.eingabe(eintrag.wert.toInt());
      break;
    case Menue::Ziel::Standorte:
      m_formen.standorte(eintrag.wert);
      break;
    case Menue::Ziel::Handel:
      m_formen.handel(eintrag.wert);
      break;
    case Menue::Ziel::Arbeitsplanoptionen:
      m_formen.arbeitsplanoptionen();
      break;
    case Menue::Ziel::TermineSetzen:
      volkTermineSetzen(this);
      break;
    case Menue::Ziel::Termine:
      m_formen.termine();
      break;
    case Menue::Ziel::AktuelleTermine:
      m_formen.aktuelleTermine();
      break;
    case Menue::Ziel::Einstellungen:
      m_formen.einstellungen();
      break;
    case Menue::Ziel::Internet:
      aktualisierungLaden(this);
      return;
    case Menue::Ziel::Komprimieren:
      komprimieren();
      return;
    case Menue::Ziel::WieAnfangen:
      m_formen.wieAnfangen();
      break;
    case Menue::Ziel::Hilfe:
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
  Ereignis::ausfuehren(this, [this] { Formen::hilfe(this, objectName()); });
}

// F1 on an open menu shows that menu's topic.
bool TA_TOVA::eventFilter(QObject* objekt, QEvent* event) {
  if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_F1) {
    for (const Menue::Menue& vorlage : Menue::menues()) {
      if (vorlage.name != objekt->objectName()) continue;
      static_cast<QMenu*>(objekt)->close();
      Ereignis::ausfuehren(this, [&] { Formen::hilfe(this, vorlage.hilfethema); });
      return true;
    }
  }
  return QMainWindow::eventFilter(objekt, event);
}
