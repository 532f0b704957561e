#pragma once

#include "colonies/Testbetrieb.h"
#include "stores/Handel.h"

// A program folder without deals and customers, and short ways to add and to read them.
class Handelsbetrieb : public Testbetrieb {
 protected:
  using Seite = Handel::Seite;

  // The inputs as the empty form has them, then these.
  static Verwaltung::Texte geschäft(Seite seite, const QString& produkt, const QString& menge,
                                    const QString& partner = {}, const QString& charge = {}) {
    Verwaltung::Texte texte = Verwaltung::vorgaben(Handel::geschäftsfelder(seite));
    texte["Produkt"] = produkt;
    texte["Menge"] = menge;
    texte[Handel::partnerfeld(seite)] = partner;
    texte["Charge"] = charge;
    return texte;
  }
  static qint64 kaufe(const QString& produkt, const QString& menge, const QString& partner = {},
                      const QString& charge = {}) {
    return Handel::geschäftSpeichern(db(), Seite::Einkauf,
                                     geschäft(Seite::Einkauf, produkt, menge, partner, charge), {});
  }
  static qint64 verkaufe(const QString& produkt, const QString& menge, const QString& partner = {},
                         const QString& charge = {}) {
    return Handel::geschäftSpeichern(db(), Seite::Verkauf,
                                     geschäft(Seite::Verkauf, produkt, menge, partner, charge), {});
  }
  static void ändere(Seite seite, qint64 id, const Verwaltung::Texte& texte) {
    EXPECT_EQ(Handel::geschäftSpeichern(db(), seite, texte, id), id);
  }
  static qint64 lager(const QString& produkt, const QVariant& zugang, const QVariant& abgang,
                      const QVariant& charge, qint64 evk = 0) {
    db().Execute(
        "insert into Honiglager(Datum, Produkt, Zugang, Abgang, Charge, Bemerkung, EVK_ID) values "
        "(?, ?, ?, ?, ?, ?, ?)",
        {QDate(2006, 5, 1), produkt, zugang, abgang, charge, QString(""), evk});
    return db().LetzteID();
  }
  // The rows of a statement as a list shows them, cells joined by "|".
  static QStringList zeilen(const QString& anweisung) {
    const Daten daten = db().Lesen(anweisung);
    QStringList alle;
    for (int i = 0; i < daten->zeilen(); ++i) {
      QStringList zellen;
      for (int j = 0; j < daten->spalten(); ++j)
        zellen << (daten->istNull(i, j) ? QString("<null>") : daten->anzeige(i, j));
      alle << zellen.join("|");
    }
    return alle;
  }
  static QStringList bewegungen() {
    return zeilen(
        "select Datum, Produkt, Zugang, Abgang, Charge, Bemerkung, EVK_ID from Honiglager order by "
        "ID");
  }
};
