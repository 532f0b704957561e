#include <QFile>
#include <QMap>

#include "Betriebsfall.h"

namespace {

// All rows of all tables as text, by table.
using Bestand = QMap<QString, QStringList>;

class Beispielbetrieb : public Betriebsfall {
 protected:
  static Bestand bestand() {
    Bestand alles;
    for (const Tabelle& tabelle : schema()) {
      const Daten daten = DB.Lesen("select * from " + tabelle.name);
      QStringList zeilen;
      for (int z = 0; z < daten->zeilen(); ++z) {
        QStringList zellen;
        for (int s = 0; s < daten->spalten(); ++s)
          zellen << (daten->istNull(z, s) ? QString("null") : '"' + daten->anzeige(z, s) + '"');
        zeilen << zellen.join(' ');
      }
      alles[tabelle.name] = zeilen;
    }
    return alles;
  }
  QByteArray einstellungen() const {
    QFile datei(m_ordner->filePath("Einstellungen.TV2"));
    return datei.open(QFile::ReadOnly) ? datei.readAll() : QByteArray();
  }
};

TEST_F(Beispielbetrieb, GleicheGrößeSaatUndTagGebenInAllenTabellenDasselbe) {
  anlegen(klein(7));
  const Bestand erster = bestand();
  const QByteArray ersteEinstellungen = einstellungen();
  anlegen(klein(7));
  const Bestand zweiter = bestand();
  ASSERT_EQ(erster.size(), 28);
  for (const QString& tabelle : erster.keys())
    EXPECT_EQ(erster[tabelle], zweiter[tabelle]) << tabelle.toStdString();
  EXPECT_FALSE(ersteEinstellungen.isEmpty());
  EXPECT_EQ(einstellungen(), ersteEinstellungen);
}

TEST_F(Beispielbetrieb, EineAndereSaatGibtAndereDaten) {
  anlegen(klein(7));
  const Bestand erster = bestand();
  anlegen(klein(8));
  const Bestand zweiter = bestand();
  for (const char* tabelle : {"Bienenvolk", "Stockkarte", "Honigernte", "Wanderung"})
    EXPECT_NE(erster[tabelle], zweiter[tabelle]) << tabelle;
}

TEST_F(Beispielbetrieb, VierundzwanzigVölkerAnSechsStandorten) {
  standard();
  EXPECT_EQ(anzahl("Bienenvolk"), 24);
  EXPECT_EQ(anzahl("Standorte"), 6);
  // Colonies 5, 13 and 21 don't come through a winter.
  EXPECT_EQ(völker("Akt_im_Bestand = 'X'").size(), 21);
  EXPECT_EQ(anzahl("Bienenvolk", "Akt_im_Bestand <> 'X' and Abgangsgrund = 'Winterverlust'"), 3);
}

TEST_F(Beispielbetrieb, JedeDerElfBuchungstabellenHatZeilen) {
  standard();
  ASSERT_EQ(buchungstabellen().size(), 11);
  for (const QString& tabelle : buchungstabellen())
    EXPECT_GT(anzahl(tabelle), 0) << tabelle.toStdString();
}

// Per colony: about a dozen inspections a season, two or three harvests in each of two whole
// seasons and one before mid June, three treatments a year.
TEST_F(Beispielbetrieb, DieMengenSindGlaubhaft) {
  standard();
  for (const qint64 volk : völker("Akt_im_Bestand = 'X'")) {
    const QString bedingung = "Volk_ID = " + QString::number(volk);
    EXPECT_GE(anzahl("Stockkarte", bedingung), 15) << volk;
    EXPECT_LE(anzahl("Stockkarte", bedingung), 45) << volk;
    EXPECT_GE(anzahl("Honigernte", bedingung), 4) << volk;
    EXPECT_LE(anzahl("Honigernte", bedingung), 9) << volk;
    EXPECT_EQ(anzahl("Behandlung", bedingung), 6) << volk;
    EXPECT_GE(buchungen(volk), 50) << volk;
    EXPECT_LE(buchungen(volk), 150) << volk;
  }
  EXPECT_EQ(anzahl("Honigernte", "Menge_kg < 2 or Menge_kg > 25"), 0);
}

TEST_F(Beispielbetrieb, NichtsIstMorgenOderVorDemZugangGebucht) {
  standard();
  const Daten volk = DB.Lesen("select ID, Volk_Zugangsdatum, Abgangsdatum from Bienenvolk");
  ASSERT_EQ(volk->zeilen(), 24);
  for (int i = 0; i < volk->zeilen(); ++i) {
    const QDate ab = volk->wert(i, 1).toDate();
    const QDate bis = volk->istNull(i, 2) ? Heute : volk->wert(i, 2).toDate();
    for (const QString& tabelle : buchungstabellen()) {
      const Daten zahl = DB.Lesen("select count(*) as n from " + tabelle +
                                      " where Volk_ID = ? and (Datum < ? or Datum > ?)",
                                  {volk->ganzzahl(i, 0), ab, bis});
      EXPECT_EQ(zahl->ganzzahl(0, 0), 0) << tabelle.toStdString() << " Volk " << i + 1;
    }
  }
}

TEST_F(Beispielbetrieb, DieHonigsummenDerVölkerStimmenMitDenErntenÜberein) {
  standard();
  const Daten volk = DB.Lesen("select ID, Honigmenge_Gesamt from Bienenvolk");
  for (int i = 0; i < volk->zeilen(); ++i) {
    const Daten summe = DB.Lesen("select sum(Menge_kg) as kg from Honigernte where Volk_ID = ?",
                                 {volk->ganzzahl(i, 0)});
    EXPECT_NEAR(volk->zahl(i, 1), summe->zahl(0, 0), 0.01) << i;
  }
}

TEST_F(Beispielbetrieb, ZweihundertBuchungenJeVolkSindGenauZweihundert) {
  Betriebsgröße größe;
  größe.völker = 8;
  größe.buchungenJeVolk = 200;
  größe.heute = Heute;
  anlegen(größe);
  const QList<qint64> gehalten = völker("Akt_im_Bestand = 'X'");
  EXPECT_EQ(gehalten.size(), 7);
  for (const qint64 volk : gehalten) EXPECT_EQ(buchungen(volk), 200) << volk;
}

TEST_F(Beispielbetrieb, EineSaisonHatKeinenWinterverlust) {
  Betriebsgröße größe = klein(1);
  größe.jahre = 1;
  anlegen(größe);
  EXPECT_EQ(völker("Akt_im_Bestand = 'X'").size(), 6);
}

TEST_F(Beispielbetrieb, DerFortschrittNenntDieFertigenVölker) {
  Betriebsgröße größe = klein(1);
  größe.völker = 101;
  größe.jahre = 1;
  QList<int> fertig;
  schließen();
  m_ordner = std::make_unique<QTemporaryDir>();
  betriebAnlegen(m_ordner->path(), größe, [&](int völker) { fertig << völker; });
  EXPECT_EQ(fertig, QList<int>({100, 101}));
}

}  // namespace
