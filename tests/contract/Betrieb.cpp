#include "Betrieb.h"

#include <QDir>
#include <QFile>

#include "bookings/Buchung.h"
#include "bookings/Zusammenfassung.h"
#include "colonies/Volk.h"
#include "core/settings.h"
#include "data/schema.h"
#include "gemeinsam/Musterdatenbank.h"
#include "mainform/Start.h"
#include "mainform/Volkliste.h"
#include "mainform/forms/Verdrahtung.h"
#include "platform/controls/Formular.h"
#include "platform/locale/Deutsch.h"

using namespace TZ_Variablen;

namespace {

const QDate Heute(2026, 6, 15);

// A believable text for each kind of slot.
QString slottext(const Buchungsslot& slot) {
  switch (slot.art) {
    case Verwaltung::Art::Dezimal:
      return slot.nachkommastellen == 1 ? QStringLiteral("6,5") : QStringLiteral("4,25");
    case Verwaltung::Art::Ganzzahl:
      return QStringLiteral("8");
    case Verwaltung::Art::Auswahl:
      return slot.texte.first();
    case Verwaltung::Art::Notiz:
      return QStringLiteral("Weiselrichtig.\r\nBaut gut.");
    default:
      break;
  }
  return slot.feld == u"Standort" ? QStringLiteral("Waldrand") : slot.feld.left(slot.maxLänge);
}

void volk(const QString& nummer, const QString& name) {
  Volkeingabe eingabe = volkNeu({});
  eingabe.sevt[0] = nummer;
  eingabe.sevt[1] = name;
  eingabe.sevt[2] = QStringLiteral("Carnica");
  eingabe.sevt[3] = QStringLiteral("Hausgarten");
  eingabe.sevt[10] = QStringLiteral("01.04.2024");
  eingabe.kon = true;
  volkSpeichern(DB, 0, eingabe, {}, {});
}

void buchungen(const QString& volkId) {
  Buchungskontext kontext;
  for (int art = 0; art < 11; ++art)
    for (const char* tag : {"10.03.2026", "20.03.2026"}) {
      Buchung buchung{art, {}};
      for (const Buchungsslot& slot : buchungstyp(art).plätze)
        buchung.texte[static_cast<size_t>(slot.nummer)] = slottext(slot);
      buchung.texte[0] = QString::fromLatin1(tag);
      BuchungSpeichern(DB, buchung, volkId, QStringLiteral("-1"), kontext);
    }
  VolkfelderNachziehen(DB, kontext.geänderteVölker);
}

void einrichten() {
  Start::einstellungenLaden(Heute);
  EinstellungenPrüfen();
  listenfelderPrüfen();
  stockkartenfelderPrüfen();
}

void füllen() {
  einrichten();
  volk(QStringLiteral("1"), QStringLiteral("Anna"));
  volk(QStringLiteral("2"), QStringLiteral("Berta"));
  volk(QStringLiteral("3"), QStringLiteral("Carla"));
  const Daten ids = DB.Lesen(QStringLiteral("select ID from Bienenvolk order by ID"));
  for (int i = 0; i < ids->zeilen(); ++i) buchungen(ids->anzeige(i, 0));
}

}  // namespace

Betrieb::Betrieb() : m_ordner(Deutsch::datumText(Heute)) {
  static Musterdatenbank muster(füllen);
  muster.kopieren();
  Start::pfadeSetzen(m_ordner.path());
  QFile::copy(QStringLiteral(TOVA_QUELLEN "/src/app/HILFETOVA.HLP"),
              m_ordner.filePath(QStringLiteral("HILFETOVA.HLP")));
  QDir::setCurrent(m_ordner.path());  // printing leaves a file there
  einrichten();
  Verdrahtung::herstellen();
  Formular::setHilfe([this](QWidget*, const QString& thema) { hilfen << thema; });
}

Betrieb::~Betrieb() {
  m_liste.reset();
  Formular::setHilfe({});
  Fensterablage::setDatei({});
  QDir::setCurrent(m_vorher);
}

Testliste& Betrieb::liste() {
  if (!m_liste) m_liste = std::make_unique<Testliste>(QStringLiteral("select * from Bienenvolk"));
  return *m_liste;
}

void Betrieb::übergeben() {
  m_liste.reset();
  Programmordner::trenne();
}

QString Betrieb::abbild() {
  QString text;
  for (const Tabelle& tabelle : schema()) {
    text += tabelle.name + u'\n';
    const Daten daten = DB.Lesen(QStringLiteral("select * from ") + tabelle.name);
    for (int zeile = 0; zeile < daten->zeilen(); ++zeile) {
      for (int spalte = 0; spalte < daten->spalten(); ++spalte)
        text += daten->anzeige(zeile, spalte) + u'\t';
      text += u'\n';
    }
  }
  return text;
}

qint64 Betrieb::anzahl(const QString& tabelle) {
  return DB.Lesen(QStringLiteral("select count(*) as anzahl from ") + tabelle)->ganzzahl(0, 0);
}
