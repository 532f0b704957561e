// The two texts that the list generator brings along.

#include "core/globals.h"
#include "evaluations/Listengenerator.h"
#include "platform/files/Textdatei.h"

namespace Listengenerator {

namespace {

// Between two colonies; nearly as wide as a page in upright format.
QString trennlinie() { return QString(85, u'-'); }

QString kopfzeile() {
  return QString("Volknr: {Volknr--}   Volkname: {Volkname----------}   Standort: ") +
         "{Standort--------------------}";
}

// A card for each colony; at the hive the new value is written behind the last one.
QStringList wabeneintrag() {
  return {kopfzeile(),
          "Volkinformationen:",
          "Volkstärke:{VS} ____  Brutstand:{BS} ____      Wabensitz:{WS} ____",
          "Sanftmut:{SM} ____    Schwarmtrieb:{ST} ____   Frühjahrsentwicklung:{FJ} ____",
          "Belagert:{BL} ____    Varroabefall:{VB} ____   Winterfestigkeit:{WF} ____",
          "Wabeninformationen:",
          "Magazine:{MZ} ____    Wabenanzahl:{WZ} ____    Mittelwände:{MW} ____",
          "Honigwaben:{HW} ____  Brutwaben:{BW} ____      Honigwaben verdeckelt:{HW_v} ____",
          "Pollenwaben:{PW} ____ Drohnenwaben:{DW} ____   Brutwaben Stifte:{BW_s} ____",
          "Leerwaben:{LW} ____   Futterwaben:{FW} ____    Brutwaben offen:{BW_o} ____",
          "                                               Brutwaben verdeckelt:{BW_v} ____",
          "Futtervorrat:",
          "eigen:{FV_e} ____     flüssig:{FV_f} ____      Teig:{FV_T} ____",
          "",
          "Datum: ____________   Bemerkung: ____________________________________________________",
          trennlinie()};
}

// All about a colony on half a page.
QStringList gesamtinfos() {
  return {kopfzeile(),
          "",
          "Volkinformationen",
          "-----------------",
          "Beuteart:    {Beuteart----------}   Bienenrasse:  {Bienenrasse-------}",
          "Königin Nr:  {KönNr-------------}   Farbe:        {KönFarbe}   vom: {KönDatum}",
          "Belegstelle: {Belegstelle-------}   Zuchtbuchnr:  {Zuchtbuchnr--}",
          "Zugang:      {Zugang--}             Herkunft:     {Herkunft--------------------}",
          "",
          "Volkstärke:   {VS}   Brutstand:    {BS}   Wabensitz:               {WS}",
          "Sanftmut:     {SM}   Schwarmtrieb: {ST}   Frühjahrsentwicklung:    {FJ}",
          "Belagert:     {BL}   Varroabefall: {VB}   Winterfestigkeit:        {WF}",
          "",
          "Letzte Honigernte: {L_Honig-}   kg: {LH_Men}   Honigmenge gesamt, kg: {HM_Ges}",
          "",
          "Wabeninformationen",
          "------------------",
          "Magazine:     {MZ}   Wabenanzahl:  {WZ}   Mittelwände:             {MW}",
          "Honigwaben:   {HW}   Brutwaben:    {BW}   Honigwaben verdeckelt: {HW_v}",
          "Pollenwaben:  {PW}   Drohnenwaben: {DW}   Brutwaben Stifte:      {BW_s}",
          "Leerwaben:    {LW}   Futterwaben:  {FW}   Brutwaben offen:       {BW_o}",
          "                                          Brutwaben verdeckelt: {BW_v}",
          "",
          "Letzte Arbeiten",
          "---------------",
          "{LA_Datum}  {LA_Arbeit-------------------}  {LA_Bem----------------------}",
          "{VA_Datum}  {VA_Arbeit-------------------}  {VA_Bem----------------------}",
          "",
          "Letzte Behandlungen",
          "-------------------",
          "{LB_Datum}  {LB_Art----------------------}  {LB_Mittel-------------------}",
          "            Menge (g): {LB_Men}   Zulassungsnr: {LB_ZulNr}   Wartezeit: {LBWz}",
          "            {LB_Bem----------------------}  Varroen: {LBVa}",
          "{VB_Datum}  {VB_Art----------------------}  {VB_Mittel-------------------}",
          "            Menge (g): {VB_Men}   Zulassungsnr: {VB_ZulNr}   Wartezeit: {VBWz}",
          "            {VB_Bem----------------------}  Varroen: {VBVa}",
          "",
          "Letzte Gewichtsmessungen",
          "------------------------",
          "{LG_Datum}  Gewicht (kg): {LG_Gew}",
          "{VG_Datum}  Gewicht (kg): {VG_Gew}",
          trennlinie()};
}

void schreibenWennFehlt(const QString& name, const QStringList& zeilen) {
  const QString pfad = TZ_Variablen::AppPfad + name;
  if (!Textdatei::existiert(pfad)) Textdatei::schreiben(pfad, zeilen);
}

}  // namespace

void beispieleSchreiben() {
  schreibenWennFehlt("Beispiel_Wabeneintrag.TKS", wabeneintrag());
  schreibenWennFehlt("Beispiel_Gesamtinfos.TKS", gesamtinfos());
}

}  // namespace Listengenerator
