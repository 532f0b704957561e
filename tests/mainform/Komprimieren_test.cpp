#include "mainform/Komprimieren.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "Umfeld.h"

using namespace TZ_Variablen;

class Komprimieren : public Umfeld {};

TEST_F(Komprimieren, DateiWirdKleinerUndDieZeilenBleiben) {
  datenbank();
  DB.Sammelschreiben([] {
    for (int i = 0; i < 3000; ++i) neu("Notizen", {{"NOTIZ", QString(200, u'n')}, {"Volk_ID", 1}});
  });
  neu("Bienenvolk", {{"Volknr", "7"}});
  DB.Execute("delete from Notizen");
  DB.Close();
  Arbeitsbereich.Close();
  const qint64 vorher = QFileInfo(DatenbankPfad).size();

  datenbankKomprimieren();

  EXPECT_LT(QFileInfo(DatenbankPfad).size(), vorher);
  EXPECT_FALSE(QFile::exists(datei("TOVA2.$$$")));
  DB = Arbeitsbereich.OpenDatabase(DatenbankPfad);
  EXPECT_EQ(DB.Lesen("select Volknr from Bienenvolk")->anzeige(0, 0), QStringLiteral("7"));
}

TEST_F(Komprimieren, OffeneGriffeSindDanachGeschlossen) {
  datenbank();
  datenbankKomprimieren();
  EXPECT_THROW(DB.Lesen("select ID from Bienenvolk"), Datenbankfehler);
}

TEST_F(Komprimieren, LiegengebliebeneKopieStörtNicht) {
  datenbank();
  QFile alt(datei("TOVA2.$$$"));
  ASSERT_TRUE(alt.open(QFile::WriteOnly));
  alt.write("alt");
  alt.close();
  datenbankKomprimieren();
  EXPECT_FALSE(alt.exists());
}

TEST_F(Komprimieren, FremdeDateiBleibtWieSieIst) {
  QFile f(DatenbankPfad);
  ASSERT_TRUE(f.open(QFile::WriteOnly));
  f.write("keine Datenbank");
  f.close();
  EXPECT_ANY_THROW(datenbankKomprimieren());
  ASSERT_TRUE(f.open(QFile::ReadOnly));
  EXPECT_EQ(f.readAll(), QByteArray("keine Datenbank"));
  EXPECT_FALSE(QFile::exists(datei("TOVA2.$$$")));
}

TEST_F(Komprimieren, EineBeschädigteDatenbankWirdHinterDerMeldungGenannt) {
  EXPECT_EQ(komprimierenFehlerText(Datenbankfehler(Datenbankfehler::Art::Gesperrt, "benutzt")),
            komprimierenFehlerText());
  const QString text =
      komprimierenFehlerText(Datenbankfehler(Datenbankfehler::Art::KeineDatenbank, "beschädigt"));
  EXPECT_EQ(text, komprimierenFehlerText() + "\r\n\r\nbeschädigt");
}
