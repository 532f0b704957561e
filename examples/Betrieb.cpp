#include "Betrieb.h"

#include <QDir>
#include <algorithm>

#include "Arbeitskalender.h"
#include "Erzeuger.h"
#include "Handelsbuch.h"
#include "Trachtgebiet.h"
#include "Zufall.h"
#include "core/globals.h"
#include "core/settings.h"
#include "data/Datenbankdatei.h"
#include "data/schema.h"
#include "platform/locale/Deutsch.h"

using namespace TZ_Variablen;

namespace {

constexpr int terminjahre = 2;  // the calendar's years; what was done before has been deleted

// A large operation is written without its indexes, which are built once at the end; only those by
// which the routines look up a colony's bookings stay.
class OhneIndexe {
 public:
  explicit OhneIndexe(bool ja) : m_ja(ja) {
    if (m_ja)
      jede([](const QString& anweisung) {
        DB.Execute("drop index " + anweisung.section(' ', 2, 2));
      });
  }
  void bauen() {
    if (m_ja) jede([](const QString& anweisung) { DB.Execute(anweisung); });
  }

 private:
  static void jede(const std::function<void(const QString&)>& tun) {
    for (const Tabelle& tabelle : schema())
      if (buchungstabellen().contains(tabelle.name))
        for (const QString& index : tabelle.indexe)
          if (!index.endsWith(QLatin1String("(Volk_ID)"))) tun(index);
  }
  bool m_ja;
};

constexpr int Stapel = 100;  // colonies to a commit

// Does the work for each colony.
void stapelweise(int völker, const std::function<void(int)>& arbeit,
                 const std::function<void(int)>& fortschritt = {}) {
  for (int erstes = 1; erstes <= völker; erstes += Stapel) {
    const int letztes = std::min(erstes + Stapel - 1, völker);
    DB.Sammelschreiben([&] {
      for (int nummer = erstes; nummer <= letztes; ++nummer) arbeit(nummer);
    });
    if (fortschritt) fortschritt(letztes);
  }
}

// The register is filled in the quiet time before the first season, so that no appointment comes
// of it; those come with the yearly run.
void völkerAnlegen(Erzeuger& erzeuger, int völker, int erstesJahr) {
  const QString heute = HeuteText;
  HeuteText = Deutsch::datumText(QDate(erstesJahr - 1, 12, 31));
  stapelweise(völker, [&](int nummer) { erzeuger.volkAnlegen(nummer); });
  HeuteText = heute;
}

void betriebFüllen(const Betriebsgröße& größe, QDate heute,
                   const std::function<void(int)>& fortschritt) {
  Zufall zufall(größe.saat);
  const int erstesJahr = heute.year() - größe.jahre + 1;
  Arbeitskalender kalender(zufall, heute, std::max(erstesJahr, heute.year() - terminjahre + 1));
  Erzeuger erzeuger(größe, heute, zufall);
  OhneIndexe ohne(größe.völker * std::max(größe.buchungenJeVolk, 100) > 100000);
  trachtgebietAnlegen(zufall, heute.year());
  völkerAnlegen(erzeuger, größe.völker, erstesJahr);
  kalender.optionenEinrichten();
  for (int jahr = erstesJahr; jahr <= heute.year(); ++jahr) {
    kalender.jahrBeginnen(jahr, erzeuger.saisonstart());
    stapelweise(
        größe.völker,
        [&](int nummer) {
          erzeuger.saison(nummer, jahr);
          if (jahr == heute.year()) erzeuger.auffüllen(nummer);
        },
        jahr == heute.year() ? fortschritt : nullptr);
    kalender.jahrAbschließen(jahr);
  }
  ohne.bauen();
  erzeuger.nachziehen();
  kalender.bisHeute();
  Handelsbuch(zufall, heute, erstesJahr, größe.völker).führen();
}

}  // namespace

void betriebAnlegen(const QString& ordner, const Betriebsgröße& größe,
                    const std::function<void(int)>& fortschritt) {
  const QDate heute = größe.heute.isValid() ? größe.heute : QDate::currentDate();
  zurücksetzen();
  AppPfad = QDir(ordner).absolutePath() + "/";
  DatenbankPfad = AppPfad + "TOVA2.MDB";
  HeuteText = Deutsch::datumText(heute);
  EinstellungenStandard(heute);
  EinstellungenPrüfen();
  EinstellungenZahl[Zahlslots.ernteInsHoniglager] = 1;  // harvests go into the honey store
  // What the keeper had listed last.
  EinstellungenText[Textslots.volkdatenFelder] = ";Volknr;Volkname;Standort;Volkstärke;Beuteart;";
  EinstellungenText[Textslots.stockkarteFelder] = ";Datum;Volkstärke;Brutstand;Bemerkung;";
  EinstellungenText[Textslots.honigernteFelder] = ";Datum;Menge_kg;Honigsorte;";
  EinstellungenText[Textslots.behandlungFelder] = ";Datum;Mittel;Menge_g;Behandlungsart;";
  EinstellungenZahl[Zahlslots.listeVolknummer] = 1;
  EinstellungenZahl[Zahlslots.listeVolkname] = 1;
  EinstellungenZahl[Zahlslots.buchungenVolknummer] = 1;
  EinstellungenZahl[Zahlslots.buchungenVolkname] = 1;
  EinstellungenWert = {7.5F, 9.0F, 0.02F, 0.1F, 18.0F, 2.0F};
  DatenbankAnlegen();

  // What fits into one batch is one commit: making it doesn't wait for the disk time and again.
  const auto füllen = [&] { betriebFüllen(größe, heute, fortschritt); };
  if (größe.völker <= Stapel)
    DB.Sammelschreiben(füllen);
  else
    füllen();
  ListeNeuLesen = 1;
  EinstellungenSchreiben();
}
