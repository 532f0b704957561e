#include "core/mainform/Aktualisierung.h"

#include <QFile>

#include "Hauptumfeld.h"
#include "platform/controls/Oeffnen.h"

using namespace TZ_Variablen;

// The menu entry that fetches the newest set-up.
class Aktualisierungslauf : public Hauptumfeld {
 protected:
  void SetUp() override {
    Hauptumfeld::SetUp();
    Oeffnen::setOeffner([this](const QString& adresse) {
      geoeffnet << adresse;
      return gelingt;
    });
  }
  void TearDown() override {
    Oeffnen::setOeffner({});
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
  void waehlen() { aktion("O_Interakt")->trigger(); }

  QStringList geoeffnet;
  bool gelingt = true;
};

TEST_F(Aktualisierungslauf, JaUebergibtDasSetUpDerEingetragenenAdresse) {
  voelker(1);
  starten();
  adresseEintragen("https://tova.example/dateien\r\n");
  antworten(true);
  waehlen();
  EXPECT_EQ(geoeffnet, QStringList("https://tova.example/dateien/tova20_setup.exe"));
  EXPECT_EQ(probe.fehler(), "");
}

TEST_F(Aktualisierungslauf, NeinLaedtNichts) {
  voelker(1);
  starten();
  adresseEintragen("https://tova.example/");
  antworten(false);
  waehlen();
  EXPECT_TRUE(geoeffnet.isEmpty());
  EXPECT_EQ(probe.fehler(), "");
}

TEST_F(Aktualisierungslauf, OhneAdresseSagtEsWoSieHingehoert) {
  voelker(1);
  starten();
  antworten(true);
  probe.hinweisMit(Aktualisierung::adressdatei());
  waehlen();
  EXPECT_TRUE(geoeffnet.isEmpty());
  EXPECT_EQ(probe.fehler(), "");
}

TEST_F(Aktualisierungslauf, WasKeineAdresseIstWirdNichtGeoeffnet) {
  voelker(1);
  starten();
  for (const char* text : {"", "\r\nhttps://zweite.example/", "gar keine", "file:///etc/passwd"}) {
    adresseEintragen(text);
    antworten(true);
    probe.hinweisMit("Es ist keine Internet-Adresse");
    waehlen();
  }
  EXPECT_TRUE(geoeffnet.isEmpty());
  EXPECT_EQ(probe.fehler(), "");
}

TEST_F(Aktualisierungslauf, OhneProgrammFuerDieAdresseWirdSieGenannt) {
  voelker(1);
  starten();
  adresseEintragen("http://tova.example/");
  gelingt = false;
  antworten(true);
  probe.hinweisMit("http://tova.example/tova20_setup.exe");
  waehlen();
  EXPECT_EQ(probe.fehler(), "");
}
