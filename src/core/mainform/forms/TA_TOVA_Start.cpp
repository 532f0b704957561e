#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QPrinterInfo>
#include <QScopeGuard>
#include <QScreen>

#include "core/globals.h"
#include "core/mainform/Komprimieren.h"
#include "core/mainform/Start.h"
#include "core/mainform/Volkanzeige.h"
#include "core/mainform/forms/Bildfeld.h"
#include "core/mainform/forms/TA_TOVA.h"
#include "core/mainform/forms/Verdrahtung.h"
#include "core/settings.h"
#include "data/schema.h"
#include "planning/Jahreslauf.h"
#include "planning/forms/Terminlauf.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Formular.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"

using namespace TZ_Variablen;

namespace {

const QString Fensterschluessel = QStringLiteral("Fenster/TA_TOVA");

bool druckerInstalliert() { return !QPrinterInfo::availablePrinterNames().isEmpty(); }

}  // namespace

bool TA_TOVA::laden(const Umgebung& umgebung) {
  m_einzelstart = std::make_unique<Einzelstart>(umgebung.ordner);
  if (m_einzelstart->laeuftBereits()) {
    Meldungen::Hinweis(Start::schonGestartetText());
    return false;
  }
  if (const QString text = Start::landtest(); !text.isEmpty()) {
    Meldungen::Hinweis(text);
    return false;
  }
  for (const QString& text :
       {Start::waehrungstest(), Start::datumtest(QDateTime::currentDateTime())})
    if (!text.isEmpty()) Meldungen::Hinweis(text);
  if (!(umgebung.druckerDa ? umgebung.druckerDa() : druckerInstalliert()))
    Meldungen::Hinweis(Start::keinDruckerText());

  Start::pfadeSetzen(umgebung.ordner);
  Verdrahtung::herstellen();
  m_geladen = Ereignis::ausfuehren(this, [&] {
    datenbankBereitstellen();
    // A file that stays protected is told; the start goes on, as most files are only read.
    Ereignis::ausfuehren(this, [this] { schreibschutzAufheben(); });
    Ereignis::ausfuehren(this, [] { Start::resteLoeschen(); });
    Start::einstellungenLaden(umgebung.heute);
    einstellungenAnwenden();
    SchemaErweitern();
  });
  return m_geladen;
}

void TA_TOVA::datenbankBereitstellen() {
  if (!Start::datenbankVorhanden()) {
    MenueSperren(false);
    m_db = Start::datenbankOeffnen();
    MenueSperren(true);
    return;
  }
  try {
    m_db = Start::datenbankOeffnen();
  } catch (const Datenbankfehler& fehler) {
    // A database copied from a read-only medium: with the protection gone it opens.
    if (fehler.art() != Datenbankfehler::Art::NurLesen ||
        !Start::schreibgeschuetzte().contains(DatenbankPfad))
      throw;
    schreibschutzAufheben();
    m_db = Start::datenbankOeffnen();
  }
}

void TA_TOVA::schreibschutzAufheben() {
  const QStringList dateien = Start::schreibgeschuetzte();
  if (dateien.isEmpty()) return;
  Meldungen::Hinweis(Start::schreibschutzText(dateien.size()));
  Start::schreibschutzEntfernen(dateien);
}

void TA_TOVA::einstellungenAnwenden() {
  MehrwertsteuerPruefen();
  breitenTeilen();
  // A run that fails is told; the start goes on and asks again next time.
  if (neuesJahr()) Ereignis::ausfuehren(this, [this] { volkTermineSetzen(this); });
  m_grafikGesperrt = true;
  kon1->setChecked(EinstellungenZahl[69] != 0);
  m_grafikGesperrt = false;
  bild->setHonigjahr(Volkanzeige::honigjahrBeschriftung());
  bild->setVisible(kon1->isChecked());
  WabenJeMagazinPruefen();
}

void TA_TOVA::zeigen() {
  const QByteArray lage = Fensterablage::lesen(Fensterschluessel).toByteArray();
  if (lage.isEmpty() || !restoreGeometry(lage)) {
    const QRect frei = screen()->availableGeometry();
    move(frei.topLeft());
    resize(frei.width(), frei.height() - 40);
    showMaximized();
    return;
  }
  show();
}

void TA_TOVA::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  if (!event->spontaneous()) {
    breitenTeilen();
    datali->setFocus();
  }
  aktivierenVormerken();
}

void TA_TOVA::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() == QEvent::ActivationChange && isActiveWindow()) aktivierenVormerken();
}

// Queued, so that what the activation opens doesn't run inside the event that brought it.
void TA_TOVA::aktivierenVormerken() {
  if (!m_geladen || m_vorgemerkt) return;
  m_vorgemerkt = true;
  QMetaObject::invokeMethod(
      this,
      [this] {
        m_vorgemerkt = false;
        Ereignis::ausfuehren(this, [this] { aktivieren(); });
      },
      Qt::QueuedConnection);
}

void TA_TOVA::aktivieren() {
  if (!m_geladen || m_beendet || m_aktiviertGerade || !isVisible() ||
      QApplication::activeModalWidget())
    return;
  m_aktiviertGerade = true;
  const auto fertig = qScopeGuard([this] { m_aktiviertGerade = false; });
  while (QGuiApplication::overrideCursor()) QGuiApplication::restoreOverrideCursor();
  listeBeiBedarfLesen();
  if (ProgrammGestartet != 0) return;
  ProgrammGestartet = 1;
  ersteAktivierung();
}

void TA_TOVA::listeBeiBedarfLesen() {
  if (ListeNeuLesen != 1) return;
  const int zeile = std::max(aktuelleZeile(), 0);
  datenvölkerlesen();
  if (zeile < zeilen()) setAktuelleZeile(zeile);
}

void TA_TOVA::ersteAktivierung() {
  // A list that couldn't be read has no columns and tells nothing about the colonies.
  if (zeilen() == 0 && datali->spalten() > 0) {
    m_formen.wieAnfangen();
    listeBeiBedarfLesen();
  }
  Start::startZaehlen();
  if (EinstellungenZahl[13] == 1 && Start::termineFaellig(m_db)) m_formen.aktuelleTermine();
}

void TA_TOVA::closeEvent(QCloseEvent* event) {
  if (m_geladen && !m_beendet) abschliessen();
  event->accept();
}

// Each step is told when it fails, and the next ones are done all the same: the window goes in any
// case.
void TA_TOVA::abschliessen() {
  Ereignis::ausfuehren(this, [] { Start::berichteLoeschen(); });
  Ereignis::ausfuehren(this, [] { Start::sicherungFaellig(); });
  Ereignis::ausfuehren(this, [this] {
    Fensterablage::schreiben(Fensterschluessel, saveGeometry());
    EinstellungenSchreiben();
  });
}

void TA_TOVA::komprimieren() {
  if (!Meldungen::Frage(komprimierenFrage(), Meldungen::Vorgabe::Ja, this)) return;
  try {
    const Ereignis::Sanduhr sanduhr;
    datenbankKomprimieren();
  } catch (const std::exception&) {
    Meldungen::Hinweis(komprimierenFehlerText(), this);
    return;
  }
  Meldungen::Hinweis(komprimierenErfolgText(), this);
  m_beendet = true;
  hide();
  QCoreApplication::exit(0);
}
