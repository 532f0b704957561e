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

namespace {

// The one instance of a form, made on first use.
template <typename Form>
Form& geholt(QPointer<Form>& form, QWidget* haupt) {
  if (!form) {
    const Ereignis::Sanduhr sanduhr;
    form = new Form(haupt);
  }
  return *form;
}

}  // namespace

void Formen::volk(const QString& volkModus) {
  VolkModus = volkModus;
  geholt(m_volk, m_haupt).zeigen();
}

void Formen::eingabe(int buchungsArt) {
  BuchungsArt = buchungsArt;
  geholt(m_eingabe, m_haupt).zeigen();
}

void Formen::standorte(const QString& formModus) {
  FormModus = formModus;
  geholt(m_standorte, m_haupt).zeigen();
}

void Formen::handel(const QString& formModus) {
  FormModus = formModus;
  geholt(m_handel, m_haupt).zeigen();
}

void Formen::einstellungen() { geholt(m_einstellungen, m_haupt).zeigen(); }

void Formen::arbeitsplanoptionen() {
  TV_Arplanoptionen& form = geholt(m_arbeitsplanoptionen, m_haupt);
  form.setTerminverwaltung([this] { termine(); });
  form.zeigen();
}

void Formen::termine() { geholt(m_termine, m_haupt).zeigen(); }

void Formen::aktuelleTermine() { geholt(m_aktuelleTermine, m_haupt).zeigen(); }

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
