#include "core/mainform/forms/Formen.h"

#include "bookings/forms/TE_Eingabe.h"
#include "colonies/forms/TV_Neues_Volk.h"
#include "core/forms/TH_Hilfe.h"
#include "core/globals.h"
#include "core/mainform/forms/TH_Hilfe_Wieanfangen.h"
#include "core/mainform/forms/TO_Einstellungen.h"
#include "planning/forms/TV_Arplanoptionen.h"
#include "planning/forms/TV_Starttermine.h"
#include "planning/forms/TV_Terminverwaltung.h"
#include "platform/controls/Ereignis.h"
#include "sites/forms/TV_Pflanzen_Standorte.h"
#include "stores/forms/TV_EinVerkauf_Lager.h"

using namespace TZ_Variablen;

void Formen::volk(const QString& volkModus) {
  VolkModus = volkModus;
  if (!m_volk) {
    const Ereignis::Sanduhr sanduhr;
    m_volk = new TV_Neues_Volk(m_haupt);
  }
  m_volk->zeigen();
}

void Formen::eingabe(int buchungsArt) {
  BuchungsArt = buchungsArt;
  if (!m_eingabe) {
    const Ereignis::Sanduhr sanduhr;
    m_eingabe = new TE_Eingabe(m_haupt);
  }
  m_eingabe->zeigen();
}

void Formen::standorte(const QString& formModus) {
  FormModus = formModus;
  if (!m_standorte) {
    const Ereignis::Sanduhr sanduhr;
    m_standorte = new TV_Pflanzen_Standorte(m_haupt);
  }
  m_standorte->zeigen();
}

void Formen::handel(const QString& formModus) {
  FormModus = formModus;
  if (!m_handel) {
    const Ereignis::Sanduhr sanduhr;
    m_handel = new TV_EinVerkauf_Lager(m_haupt);
  }
  m_handel->zeigen();
}

void Formen::einstellungen() {
  if (!m_einstellungen) {
    const Ereignis::Sanduhr sanduhr;
    m_einstellungen = new TO_Einstellungen(m_haupt);
  }
  m_einstellungen->zeigen();
}

void Formen::arbeitsplanoptionen() {
  if (!m_arbeitsplanoptionen) {
    const Ereignis::Sanduhr sanduhr;
    m_arbeitsplanoptionen = new TV_Arplanoptionen(m_haupt);
    m_arbeitsplanoptionen->setTerminverwaltung([this] { termine(); });
  }
  m_arbeitsplanoptionen->zeigen();
}

void Formen::termine() {
  if (!m_termine) {
    const Ereignis::Sanduhr sanduhr;
    m_termine = new TV_Terminverwaltung(m_haupt);
  }
  m_termine->zeigen();
}

void Formen::aktuelleTermine() {
  if (!m_aktuelleTermine) {
    const Ereignis::Sanduhr sanduhr;
    m_aktuelleTermine = new TV_Starttermine(m_haupt);
  }
  m_aktuelleTermine->zeigen();
}

void Formen::wieAnfangen() {
  if (!m_wieAnfangen)
    m_wieAnfangen = new TH_Hilfe_Wieanfangen(
        m_haupt, {[this] { standorte(QStringLiteral("0")); }, [this] { arbeitsplanoptionen(); },
                  [this] { volk(QStringLiteral("Neu")); }});
  m_wieAnfangen->zeigen();
}

void Formen::hilfe(QWidget* oeffner, const QString& thema) {
  static QPointer<TH_Hilfe> hilfe;
  HilfeThema = thema;
  if (!hilfe)
    hilfe = new TH_Hilfe(oeffner);
  else if (hilfe->parentWidget() != oeffner->window())
    hilfe->setParent(oeffner->window(), hilfe->windowFlags());
  hilfe->zeigen();
}
