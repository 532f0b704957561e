#include "core/globals.h"

namespace TZ_Variablen {

Workspace Arbeitsbereich;
Database DB;
QString AppPfad;
QString DatenbankPfad;
QString HeuteText;
QString AktVolkID;
int ListeNeuLesen = 0;
int ProgrammGestartet = 0;
QString VolkModus;
int BuchungsArt = 0;
QString FormModus;
QString AusgabeDatei;
QString HilfeThema;
QString DateiErgebnis;
int BildAnhalten = 0;
bool SammelFolgevolk = false;

Slotspeicher<qint16, Zahlslot, 101> EinstellungenZahl{};
Slotspeicher<float, Wertslot, 11> EinstellungenWert{};
Slotspeicher<QString, Textslot, 61> EinstellungenText;

void zurücksetzen() {
  DB.Close();
  Arbeitsbereich.Close();
  for (QString* text : {&AppPfad, &DatenbankPfad, &HeuteText, &AktVolkID, &VolkModus, &FormModus,
                        &AusgabeDatei, &HilfeThema, &DateiErgebnis})
    text->clear();
  ListeNeuLesen = 0;
  ProgrammGestartet = 0;
  BuchungsArt = 0;
  BildAnhalten = 0;
  SammelFolgevolk = false;
  EinstellungenZahl.fill(0);
  EinstellungenWert.fill(0);
  EinstellungenText.fill(QString());
}

}  // namespace TZ_Variablen
