#pragma once

#include <QString>

#include "core/slots.h"
#include "platform/database/Datenbank.h"

// The program's global state. Forms talk to one another only through it and through the database:
// an opener sets the globals that describe the task, opens the other form, and looks at the result
// when the call returns.
namespace TZ_Variablen {

inline constexpr auto Version = "2.0.57";
inline const QString CRLF = QStringLiteral("\r\n");

extern Workspace Arbeitsbereich;
extern Database DB;            // connection of the shared routines
extern QString AppPfad;        // program folder, ends in "/"
extern QString DatenbankPfad;  // AppPfad + "TOVA2.MDB"
extern QString HeuteText;      // today as "dd.mm.yyyy", set once at the start
extern QString AktVolkID;      // ID of the colony in the main list's current row
extern int ListeNeuLesen;      // 1: the main list is read anew at its next activation
extern int ProgrammGestartet;  // 1: the first activation has happened
extern QString VolkModus;      // "Neu" or "Ändern": what TV_Neues_Volk is opened for
extern int BuchungsArt;        // 0 to 10: what TE_Eingabe is opened for
extern QString FormModus;      // mode of a form that serves several menu entries
extern QString AusgabeDatei;   // file that the text output shows
extern QString HilfeThema;     // key of the help topic
extern QString DateiErgebnis;  // file chosen in a file form; empty after Cancel
extern int BildAnhalten;       // 1 while a run moves the main list through several colonies
extern bool SammelFolgevolk;   // set from the second colony of a booking run on

// The settings; their places have names (core/slots.h).
extern Slotspeicher<qint16, Zahlslot, 101> EinstellungenZahl;
extern Slotspeicher<float, Wertslot, 11> EinstellungenWert;
extern Slotspeicher<QString, Textslot, 61> EinstellungenText;

// Everything as it is before the start; for the start itself and for tests.
void zurücksetzen();

}  // namespace TZ_Variablen
