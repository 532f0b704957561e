#pragma once

#include <QHash>
#include <QList>
#include <QStringList>
#include <functional>
#include <optional>

#include "core/slots.h"
#include "output/Ausgabeliste.h"
#include "platform/database/Datenbank.h"

// An evaluation as data: its name, its inputs, each with the slot that keeps it, its commands, its
// reasons for not running, and for each command a function without a window that computes a list or
// a text. The form is made from it (evaluations/forms/Auswertungsformular). No evaluation writes to
// a table.
namespace Auswertung {

// ---- what the user has put in ----

// The inputs' values by name. The members of an array go by their index: an("kontier", 1).
class Eingaben {
 public:
  // The text of a text, date, year or number input, of a choice and of a label.
  QString text(const QString& name) const { return m_texte.value(name); }
  QString text(const QString& name, int index) const { return text(glied(name, index)); }
  void setText(const QString& name, const QString& text) { m_texte[name] = text; }
  void setText(const QString& name, int index, const QString& text) {
    setText(glied(name, index), text);
  }
  // Whether a check box is on.
  bool an(const QString& name) const { return m_zahlen.value(name, 0) == 1; }
  bool an(const QString& name, int index) const { return an(glied(name, index)); }
  void setAn(const QString& name, bool an) { m_zahlen[name] = an ? 1 : 0; }
  void setAn(const QString& name, int index, bool an) { setAn(glied(name, index), an); }
  // The index of the option that is on, of the current entry of a list or a choice; -1 for none.
  int wahl(const QString& name) const { return m_zahlen.value(name, -1); }
  void setWahl(const QString& name, int wahl) { m_zahlen[name] = wahl; }
  // The keys of the entries that are ticked, in the list's order.
  QStringList gewählt(const QString& name) const { return m_listen.value(name); }
  QStringList gewählt(const QString& name, int index) const { return gewählt(glied(name, index)); }
  void setGewählt(const QString& name, const QStringList& keys) { m_listen[name] = keys; }
  void setGewählt(const QString& name, int index, const QStringList& keys) {
    setGewählt(glied(name, index), keys);
  }
  // What a list offers at the moment: set by the form whenever it fills the list.
  QStringList angebot(const QString& name) const { return m_angebote.value(name); }
  // The key of the current entry of a list or a choice; empty for none.
  QString posten(const QString& name) const { return angebot(name).value(wahl(name)); }
  void setAngebot(const QString& name, const QStringList& keys) { m_angebote[name] = keys; }

  // The colony in the main list's current row; 0 without one.
  qint64 volk = 0;

  static QString glied(const QString& name, int index) {
    return name + u'_' + QString::number(index);
  }
  bool operator==(const Eingaben&) const = default;

 private:
  QHash<QString, QString> m_texte;
  QHash<QString, int> m_zahlen;
  QHash<QString, QStringList> m_listen;
  QHash<QString, QStringList> m_angebote;
};

// ---- the inputs as the form describes them ----

enum class Art {
  Haken,       // a check box
  Optionen,    // one of several: radio buttons name_0, name_1 ...
  Auswahl,     // one of a list that folds out: its index
  Wahltext,    // a field that takes only the texts of its list: the text
  Liste,       // one of a list that stands open
  Merkliste,   // any of a list that stands open, each with a tick
  Nebenliste,  // the keys of the list postenVon, right of it: read only, scrolls with it
  Text,
  Betrag,  // money, two decimals
  Ganzzahl,
  Datum,     // dd.mm.yyyy
  Jahr,      // completed by JahrErgaenzen on leaving; offers ten years before and after this one
  Anzeige,   // a label that a command or another input fills
  Lesetext,  // a longer text, not to be changed
  Befehl     // a command that stands among the inputs
};

// An entry of a list: the key is what is kept and computed with, the title what the user reads.
struct Posten {
  QString schlüssel;
  QString titel;
};

struct Eingabe {
  Art art = Art::Haken;
  QString name;  // objectName; of Optionen without the index
  QString titel;
  QStringList texte = {};   // Optionen: the captions; Lesetext: the lines
  int maxLänge = 0;         // Text
  qint64 bis = 0;           // Ganzzahl: 0 to this
  QString vorgabe = {};     // what stands in it where no slot does; of Optionen the index
  QString hinweis = {};     // tool tip
  QString gesprochen = {};  // what a screen reader says, else the title
  QString einheit = {};     // behind the input

  // The slot that keeps it. Haken: 1 is on. Optionen, Liste, Auswahl: the index; one that there
  // isn't becomes vorgabe. Ganzzahl, Jahr: the number. Merkliste: ";A;B;".
  std::optional<Zahlslot> zahlslot = {};
  std::optional<Textslot> textslot = {};
  int stelle = -1;              // Haken: its character in the text slot, "0" or "1"
  int slotwert = -1;            // Haken: on when the slot holds this number; with none on it is 0
  bool nullIstVorgabe = false;  // a Zahlslot of 0 becomes vorgabe on load
  bool darfLeerSein = false;    // Optionen: an index that there isn't leaves none on

  // What a list offers, read on opening and after each change of the input named here.
  std::function<QList<Posten>(Database&, const Eingaben&)> posten = {};
  QString postenVon = {};
  QString doppelklick = {};  // a command's name; so does Enter in the list

  bool grün = false;     // on a green ground: parameters that a command sets
  bool daneben = false;  // stands right of the input before
  // The focus on it switches an option on: name and index.
  std::optional<std::pair<QString, int>> fokusWählt = {};

  Eingabe slot(const Zahlslot& s) const {
    auto e = *this;
    e.zahlslot = s;
    return e;
  }
  Eingabe slot(const Textslot& s) const {
    auto e = *this;
    e.textslot = s;
    return e;
  }
  Eingabe slot(const Textslot& s, int zeichen) const {
    auto e = slot(s);
    e.stelle = zeichen;
    return e;
  }
  Eingabe slot(const Zahlslot& s, int wert) const {
    auto e = slot(s);
    e.slotwert = wert;
    return e;
  }
  Eingabe mitVorgabe(const QString& text) const {
    auto e = *this;
    e.vorgabe = text;
    return e;
  }
  Eingabe nullWirdVorgabe(const QString& text) const {
    auto e = mitVorgabe(text);
    e.nullIstVorgabe = true;
    return e;
  }
  Eingabe ohneZwang() const {
    auto e = *this;
    e.darfLeerSein = true;
    return e;
  }
  Eingabe rechtsDavon() const {
    auto e = *this;
    e.daneben = true;
    return e;
  }
  Eingabe wählt(const QString& n, int index) const {
    auto e = *this;
    e.fokusWählt = {n, index};
    return e;
  }
  Eingabe mitHinweis(const QString& text) const {
    auto e = *this;
    e.hinweis = text;
    return e;
  }
  Eingabe genannt(const QString& text) const {
    auto e = *this;
    e.gesprochen = text;
    return e;
  }
  Eingabe mitEinheit(const QString& text) const {
    auto e = *this;
    e.einheit = text;
    return e;
  }
  Eingabe beiDoppelklick(const QString& befehl) const {
    auto e = *this;
    e.doppelklick = befehl;
    return e;
  }
  Eingabe abhängigVon(const QString& n) const {
    auto e = *this;
    e.postenVon = n;
    return e;
  }
};

using Postenquelle = std::function<QList<Posten>(Database&, const Eingaben&)>;

Eingabe haken(const QString& name, int index, const QString& titel);
Eingabe haken(const QString& name, const QString& titel);
Eingabe optionen(const QString& name, const QStringList& titel, int vorgabe = 0);
Eingabe auswahl(const QString& name, const QString& titel, Postenquelle posten);
Eingabe wahltext(const QString& name, const QString& titel, Postenquelle posten);
Eingabe liste(const QString& name, const QString& titel, Postenquelle posten);
Eingabe merkliste(const QString& name, const QString& titel, Postenquelle posten);
Eingabe nebenliste(const QString& name, const QString& titel, const QString& liste);
Eingabe text(const QString& name, const QString& titel, int maxLänge);
Eingabe betrag(const QString& name, const QString& titel);
Eingabe ganzzahl(const QString& name, const QString& titel, qint64 bis);
Eingabe datum(const QString& name, const QString& titel);
Eingabe jahr(const QString& name, const QString& titel);
Eingabe anzeige(const QString& name);
Eingabe lesetext(const QString& name, const QString& titel, const QStringList& zeilen);
Eingabe knopf(const QString& name, const QString& titel);

// A fixed list; key and title are the same.
Postenquelle feste(const QStringList& texte);
Postenquelle feste(const QList<Posten>& posten);
// The fields of a table in its order, without those named.
Postenquelle felderVon(const QString& tabelle, const QStringList& ohne = {});

struct Gruppe {
  QString titel;  // empty: no frame around it
  QList<Eingabe> eingaben;
  int spalte = 0;         // groups stand in columns, from the left, one below the other
  int nebeneinander = 1;  // so many check boxes or buttons in a row
  // The commands "Alle" and "Keine" (alletier_0, alletier_1) switch all check boxes and ticks of
  // the groups in which this isn't Nein, and stand in those with Knöpfe.
  enum class Alle { Nein, Ja, Knöpfe };
  Alle alle = Alle::Nein;
};

// The frame's own pieces.

// optitieraus 0 to 4, with nächster.
Gruppe völkerwahl(int spalte = 0);
// kontier 0 to 2; as many as there are slots.
Gruppe volkfelder(const QString& titel, const QList<Zahlslot>& ablage, int spalte = 0);

// optibuch, one option for each text, and in the row of the second tdat 0 and 1.
Gruppe buchungsauswahl(const QString& titel, const QStringList& texte, const Zahlslot& ablage,
                       int spalte = 0);
// The usual three of them.
QStringList buchungsauswahlTexte();

// ---- commands ----

// One run: what it may read and where it tells how far it is.
struct Lauf {
  Database& db;
  const Eingaben& eingaben;
  Fortschritt fortschritt = {};
};

// What a run gives: a list, a text, or neither and what to say then.
struct Ergebnis {
  std::optional<Ausgabeliste> liste = {};  // one without rows is handed to nobody
  std::optional<QStringList> text = {};    // the lines of LISTE.TXT
  QString leer = {};                       // what is said when the list has no row
  QString titel = {};                      // above a list that stays in the form
};

struct Befehl {
  QString name;   // objectName, with its index
  QString titel;  // empty for one that is an input (Art::Befehl) and has its title there
  // A run.
  std::function<Ergebnis(Lauf&)> lauf = {};
  // Or a change of the inputs, asked before where frage isn't empty.
  std::function<void(Eingaben&)> tat = {};
  QString frage = {};
  // Or the form of a menu entry; danach is told when it was closed.
  QString öffnet = {};
  QString danach = {};
  // Or the hand-over of the list that stands in the form.
  bool übergibt = false;
  QString hinweis = {};
};

struct Beschreibung {
  QString name;   // of the form, TW_...
  QString titel;  // of the window
  QList<Gruppe> gruppen = {};
  QList<Befehl> befehle = {};  // those with a title stand in the foot; the first is the default
  QString kopf = QStringLiteral("Die Daten können nicht gelistet werden, weil...");
  QString hinweis = {};  // a text below the inputs

  // After the slots were read.
  std::function<void(Eingaben&)> nachLaden = {};
  // When an input was changed (a text: when it was left), after its own value.
  std::function<void(const QString& name, Eingaben&)> beiÄnderung = {};
  // At the beginning of a run; the text that it gives is told, and the run goes on.
  std::function<QString(const QString& befehl, Eingaben&)> vorPrüfung = {};
  // The reasons for not running.
  std::function<QStringList(const QString& befehl, const Eingaben&)> prüfe = {};
  // A refusal in words of its own, before the reasons; empty: goes on.
  std::function<QString(const QString& befehl, const Eingaben&)> verweigert = {};
  // After the check, before the run.
  std::function<void(const QString& befehl, Eingaben&)> nachPrüfung = {};
  // Before the slots are written.
  std::function<void(const Eingaben&)> sichern = {};

  // A result that stays in the form: the name of its grid; empty: it is handed over.
  QString ergebnisliste = {};
  int zeichen = 0;  // the wish for the window, in characters and lines
  int zeilen = 0;

  const Befehl* befehl(const QString& name) const;
  const Eingabe* eingabe(const QString& name) const;
};

// Puts the inputs as the slots say. The lists' offers are needed for ticks and indexes and stand in
// the inputs already.
void laden(const Beschreibung& beschreibung, Eingaben& eingaben);
// Writes them back.
void sichern(const Beschreibung& beschreibung, const Eingaben& eingaben);

// The one box with all reasons; empty when there is none.
QString ablehnung(const Beschreibung& beschreibung, const QStringList& gründe);

// ---- what runs have in common ----

inline const QString NichtsGefunden = QStringLiteral("Keine zu listenden Daten gefunden");

// The restrict text of a colony choice. schlicht serves a statement over Bienenvolk alone;
// qualifiziert one that joins it and goes on with " and ".
QString schlichterRest(const Eingaben& eingaben);
QString qualifizierterRest(const Eingaben& eingaben);

// ";A;B;"
QString alsListe(const QStringList& namen);
bool inListe(const QString& liste, const QString& name);

// The checks of a period in dates (optibuch 1, tdat 0 and 1).
QStringList zeitraumGründe(const Eingaben& eingaben);
// " and Honigernte.Datum >= #05/01/2026# and Honigernte.Datum <= #05/31/2026#" for the field
// Honigernte.Datum; empty for all bookings.
QString zeitraumRest(const Eingaben& eingaben, const QString& feld);
// The year of today, "2026".
QString diesesJahr();

}  // namespace Auswertung
