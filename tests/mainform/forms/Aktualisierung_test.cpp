#include "mainform/Aktualisierung.h"

#include <QFile>

#include "Hauptumfeld.h"
#include "platform/controls/Oeffnen.h"

using namespace TZ_Variablen;

// The menu entry that fetches the newest set-up.
class Aktualisierungslauf : public Hauptumfeld {
 protected:
  void SetUp() override {
    Hauptumfeld::SetUp();
    Öffnen::setÖffner([this](const QString& adresse) {
      geöffnet << adresse;
      return gelingt;
    });
  }
  void TearDown() override {
    Öffnen::setÖffner({});
    Hauptumfeld::TearDown();
  }
  void adresseEintragen(const QByteArray& text) {
    QFile datei(Aktualisierung::adressdatei());
    ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
    datei.write(text);
  }
  void antworten(bool ja) {
    probe.frageMit(
        "Soll die aktuellste TOVA (ca. 8 MByte) jetzt heruntergeladen werden? Dieser Prozess kann "
        "je nach Internetanschluss einige Minuten dauern?",
        ja);
  }
  void wählen() { aktion("O_Interakt")->trigger(); }

  QStringList geöffnet;
  bool gelingt = true;
};

TEST_F(Aktualisierungslauf, JaÜbergibtDasSetUpDerEingetragenenAdresse) {
  völker(1);
  starten();
  adresseEintragen("https://tova.example/dateien\r\n");
  antworten(true);
  wählen();
  EXPECT_EQ(geöffnet, QStringList("https://tova.example/dateien/tova20_setup.exe"));
  EXPECT_EQ(probe.fehler(), "");
}

TEST_F(Aktualisierungslauf, NeinLädtNichts) {
  völker(1);
  starten();
  adresseEintragen("https://tova.example/");
  antworten(false);
  wählen();
  EXPECT_TRUE(geöffnet.isEmpty());
  EXPECT_EQ(probe.fehler(), "");
}

TEST_F(Aktualisierungslauf, OhneAdresseSagtEsWoSieHingehört) {
  völker(1);
  starten();
  antworten(true);
  probe.hinweisMit(Aktualisierung::adressdatei());
  wählen();
  EXPECT_TRUE(geöffnet.isEmpty());
  EXPECT_EQ(probe.fehler(), "");
}

TEST_F(Aktualisierungslauf, WasKeineAdresseIstWirdNichtGeöffnet) {
  völker(1);
  starten();
  for (const char* text : {"", "\r\nhttps://zweite.example/", "gar keine", "file:///etc/passwd"}) {
    adresseEintragen(text);
    antworten(true);
    probe.hinweisMit("Es ist keine Internet-Adresse");
    wählen();
  }
  EXPECT_TRUE(geöffnet.isEmpty());
  EXPECT_EQ(probe.fehler(), "");
}

TEST_F(Aktualisierungslauf, OhneProgrammFürDieAdresseWirdSieGenannt) {
  völker(1);
  starten();
  adresseEintragen("http://tova.example/");
  gelingt = false;
  antworten(true);
  probe.hinweisMit("http://tova.example/tova20_setup.exe");
  wählen();
  EXPECT_EQ(probe.fehler(), "");
}
