#include "Betrieb.h"

#include <QDir>
#include <QFile>

#include "bookings/Buchung.h"
#include "bookings/Volkfelder.h"
#include "colonies/Volk.h"
#include "core/mainform/Liste.h"
#include "core/mainform/Start.h"
#include "core/mainform/forms/Verdrahtung.h"
#include "core/settings.h"
#include "data/schema.h"
#include "platform/controls/Formular.h"

using namespace TZ_Variablen;

namespace {

const QDate Heute(2026, 6, 15);

void trennen() {
  DB.Close();
  Arbeitsbereich.Close();
}

// A believable text for each kind of slot.
QString slottext(const Buchungsslot& slot) {
  switch (slot.art) {
    case Slotart::Dezimal:
      return slot.nachkommastellen == 1 ? QStringLiteral("6,5") : QStringLiteral("4,25");
    case Slotart::Ganzzahl:
      return QStringLiteral("8");
    case Slotart::Auswahl:
      return slot.auswahl.first();
    case Slotart::Notiz:
      return QStringLiteral("Weiselrichtig.\r\nBaut gut.");
    case Slotart::Text:
      break;
  }
  return slot.feld == u"Standort" ? QStringLiteral("Waldrand") : slot.feld.left(slot.laenge);
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
      for (const Buchungsslot& slot : buchungstyp(art).plaetze)
        buchung.texte[static_cast<size_t>(slot.nummer)] = slottext(slot);
      buchung.texte[0] = QString::fromLatin1(tag);
      BuchungSpeichern(DB, buchung, volkId, QStringLiteral("-1"), kontext);
    }
  VolkfelderNachziehen(DB, kontext.geaenderteVoelker);
}

void einrichten(const QString& ordner) {
  zuruecksetzen();
  Start::pfadeSetzen(ordner);
  Start::datenbankOeffnen();
  Start::einstellungenLaden(Heute);
  MehrwertsteuerPruefen();
  WabenJeMagazinPruefen();
  listenfelderPruefen();
  stockkartenfelderPruefen();
}

// The sample's database, made once.
QString vorlage() {
  static QTemporaryDir ordner;
  static const QString pfad = [] {
    einrichten(ordner.path());
    volk(QStringLiteral("1"), QStringLiteral("Anna"));
    volk(QStringLiteral("2"), QStringLiteral("Berta"));
    volk(QStringLiteral("3"), QStringLiteral("Carla"));
    const Daten ids = DB.Lesen(QStringLiteral("select ID from Bienenvolk order by ID"));
    for (int i = 0; i < ids->zeilen(); ++i) buchungen(ids->anzeige(i, 0));
    const QString datei = DatenbankPfad;
    trennen();
    return datei;
  }();
  return pfad;
}

}  // namespace

Betrieb::Betrieb() {
  const QString muster = vorlage();
  QFile::copy(muster, m_ordner.filePath(QStringLiteral("TOVA2.MDB")));
  QFile::copy(QStringLiteral(TOVA_QUELLEN "/src/app/HILFETOVA.HLP"),
              m_ordner.filePath(QStringLiteral("HILFETOVA.HLP")));
  QDir::setCurrent(m_ordner.path());  // printing leaves a file there
  einrichten(m_ordner.path());
  Verdrahtung::herstellen();
  Formular::setHilfe([this](QWidget*, const QString& thema) { hilfen << thema; });
}

Betrieb::~Betrieb() {
  m_liste.reset();
  Formular::setHilfe({});
  Fensterablage::setDatei({});
  trennen();
  zuruecksetzen();
  QDir::setCurrent(m_vorher);
}

Testliste& Betrieb::liste() {
  if (!m_liste) m_liste = std::make_unique<Testliste>(QStringLiteral("select * from Bienenvolk"));
  return *m_liste;
}

void Betrieb::uebergeben() {
  m_liste.reset();
  trennen();
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
