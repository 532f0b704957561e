#include <QApplication>
#include <QCheckBox>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QScopeGuard>
#include <QScreen>
#include <QTimer>

#include "bookings/Zusammenfassung.h"
#include "core/globals.h"
#include "core/settings.h"
#include "data/Datenbankdatei.h"
#include "data/schema.h"
#include "mainform/Komprimieren.h"
#include "mainform/Start.h"
#include "mainform/Volkanzeige.h"
#include "mainform/forms/Bildfeld.h"
#include "mainform/forms/Formen.h"
#include "mainform/forms/TA_TOVA.h"
#include "mainform/forms/Verdrahtung.h"
#include "planning/Jahreslauf.h"
#include "planning/forms/Terminlauf.h"
#include "platform/controls/Druckersuche.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Formular.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"

using namespace TZ_Variablen;

namespace {

const QString Fensterschlüssel = QStringLiteral("Fenster/TA_TOVA");

}  // namespace

bool TA_TOVA::laden(const Umgebung& umgebung) {
  m_einzelstart = std::make_unique<Einzelstart>(umgebung.ordner);
  if (const QString& rechner = m_einzelstart->andererRechner(); !rechner.isEmpty()) {
    if (!Meldungen::Frage(Start::andererRechnerFrage(rechner), Meldungen::Vorgabe::Nein))
      return false;
    m_einzelstart->übernehmen();
  }
  if (m_einzelstart->läuftBereits()) {
    Meldungen::Hinweis(Start::schonGestartetText());
    return false;
  }
  if (const QString text = Start::landtest(); !text.isEmpty()) {
    Meldungen::Hinweis(text);
    return false;
  }
  for (const QString& text :
       {Start::währungstest(), Start::datumtest(QDateTime::currentDateTime())})
    if (!text.isEmpty()) Meldungen::Hinweis(text);
  if (Druckersuche::antwort(umgebung.druckerDa) == false)
    Meldungen::Hinweis(Start::keinDruckerText());

  Start::pfadeSetzen(umgebung.ordner);
  Verdrahtung::herstellen();
  m_geladen = Ereignis::ausführen(this, [&] {
    datenbankBereitstellen();
    for (const QString& text : Arbeitsbereich.NimmHinweise()) Meldungen::Hinweis(text);
    // A file that stays protected is told; the start goes on, as most files are only read.
    Ereignis::ausführen(this, [this] { schreibschutzAufheben(); });
    Ereignis::ausführen(this, [] { Start::resteLöschen(); });
    if (const auto bruch = Start::einstellungenLaden(umgebung.heute))
      Meldungen::Hinweis(Start::einstellungsbruchText(*bruch));
    einstellungenAnwenden();
    SchemaErweitern();
    // What a killed program or a failing medium has left undone. A failure is told; the start goes
    // on.
    Ereignis::ausführen(this, [this] { ZusammenfassungenNachholen(m_db); });
  });
  return m_geladen;
}

void TA_TOVA::datenbankBereitstellen() {
  if (!Start::datenbankVorhanden()) {
    MenueSperren(false);
    m_db = Start::datenbankÖffnen();
    MenueSperren(true);
    return;
  }
  try {
    m_db = Start::datenbankÖffnen();
  } catch (const Datenbankfehler& fehler) {
    // A database copied from a read-only medium: with the protection gone it opens.
    if (fehler.art() != Datenbankfehler::Art::NurLesen ||
        !Start::schreibgeschützte().contains(DatenbankPfad))
      throw;
    schreibschutzAufheben();
    m_db = Start::datenbankÖffnen();
  }
}

void TA_TOVA::schreibschutzAufheben() {
  const QStringList dateien = Start::schreibgeschützte();
  if (dateien.isEmpty()) return;
  Meldungen::Hinweis(Start::schreibschutzText(dateien.size()));
  Start::schreibschutzEntfernen(dateien);
}

void TA_TOVA::einstellungenAnwenden() {
  EinstellungenPrüfen();
  breitenTeilen();
  // A run that fails is told; the start goes on and asks again next time.
  if (neuesJahr()) Ereignis::ausführen(this, [this] { volkTermineSetzen(this); });
  m_grafikGesperrt = true;
  m_kon1->setChecked(EinstellungenZahl[Zahlslots.grafikZeigen] != 0);
  m_grafikGesperrt = false;
  m_bild->setHonigjahr(Volkanzeige::honigjahrBeschriftung());
  m_bild->setVisible(m_kon1->isChecked());
}

void TA_TOVA::zeigen() {
  const QByteArray lage = Fensterablage::lesen(Fensterschlüssel).toByteArray();
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
    m_datali->setFocus();
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
        Ereignis::ausführen(this, [this] { aktivieren(); });
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
  if (ZusammenfassungenOffen(m_db)) m_nachholen->start();
  if (ProgrammGestartet != 0) return;
  ProgrammGestartet = 1;
  ersteAktivierung();
}

// The entry form couldn't write the summaries and has told so: another program was at work on the
// database, or the disk was full. They are tried again, without a word, until they are written.
void TA_TOVA::zusammenfassungenNachholen() {
  if (m_beendet || !m_db.IsOpen()) return;
  if (QApplication::activeModalWidget()) return m_nachholen->start();
  try {
    if (!ZusammenfassungenNachholen(m_db)) return;
  } catch (const Datenbankfehler&) {
    return m_nachholen->start();
  }
  ListeNeuLesen = 1;
  listeBeiBedarfLesen();
}

void TA_TOVA::listeBeiBedarfLesen() {
  if (ListeNeuLesen != 1) return;
  const int zeile = std::max(aktuelleZeile(), 0);
  datenvölkerlesen();
  if (zeile < zeilen()) setAktuelleZeile(zeile);
}

void TA_TOVA::ersteAktivierung() {
  // A list that couldn't be read has no columns and tells nothing about the colonies.
  if (zeilen() == 0 && m_datali->spalten() > 0) {
    Formen::zeigen(this, "hilfewieanfangen");
    listeBeiBedarfLesen();
  }
  Start::startZählen();
  if (EinstellungenZahl[Zahlslots.terminlisteBeimStart] == 1 && Start::termineFällig(m_db))
    Formen::zeigen(this, "XV_Aktuelle_Termine");
}

void TA_TOVA::closeEvent(QCloseEvent* event) {
  if (m_geladen && !m_beendet) abschließen();
  event->accept();
}

// Each step is told when it fails, and the next ones are done all the same: the window goes in any
// case.
void TA_TOVA::abschließen() {
  Ereignis::ausführen(this, [] { Start::berichteLöschen(); });
  Ereignis::ausführen(this, [] { Start::sicherungFällig(); });
  Ereignis::ausführen(this, [this] {
    Fensterablage::schreiben(Fensterschlüssel, saveGeometry());
    EinstellungenSchreiben();
  });
}

void TA_TOVA::komprimieren() {
  if (!Meldungen::Frage(komprimierenFrage(), Meldungen::Vorgabe::Ja, this)) return;
  try {
    const Ereignis::Sanduhr sanduhr;
    datenbankKomprimieren();
  } catch (const std::exception& fehler) {
    Meldungen::Hinweis(komprimierenFehlerText(fehler), this);
    return;
  }
  Meldungen::Hinweis(komprimierenErfolgText(), this);
  m_beendet = true;
  hide();
  QCoreApplication::exit(0);
}
