// Saved entry masks, and what users paste and type into slots.
#include "Eingabeprobe.h"
#include "platform/files/Textdatei.h"

namespace {

using namespace TZ_Variablen;

class EingabeMasken : public Eingabeprobe {
 protected:
  QString datei(int art) { return AppPfad + "TOVA_TE_EINGABE_STD" + QString::number(art) + ".TV2"; }
  void sichern(int art) {
    boxen.hinweis("Die aktuelle Eingabemaske wurde unter dem Dateinamen " + datei(art) +
                  " gespeichert.");
    klicke("standard_0");
    EXPECT_EQ(boxen.fehler(), "");
  }
};

TEST_F(EingabeMasken, EineMaskeKommtZurueckAberOhneDatum) {
  oeffne(5);
  tippe(0, "01.02.2026");
  tippe(1, "Füttern; groß");
  tippe(2, "1,25");
  tippe(4, "mit Zuckerwasser");
  sichern(5);
  klicke("nextvolk1_1");
  tippe(0, "03.02.2026");
  EXPECT_EQ(text(1), "");
  klicke("standard_1");
  EXPECT_EQ(text(0), "03.02.2026");
  EXPECT_EQ(text(1), "Füttern; groß");
  EXPECT_EQ(text(2), "1,25");
  EXPECT_EQ(text(4), "mit Zuckerwasser");
  EXPECT_EQ(Textdatei::lesen(datei(5)).size(), 26);
}

TEST_F(EingabeMasken, DieMaskeDerWanderungHatEineZeileWeniger) {
  oeffne(6);
  tippe(1, "Heide");
  feld(5)->setFocus();
  tasten(feld(5), "J");
  tippe(6, "früh los");
  sichern(6);
  EXPECT_EQ(Textdatei::lesen(datei(6)).size(), 25);
  klicke("nextvolk1_1");
  klicke("standard_1");
  EXPECT_EQ(text(1), "Heide");
  EXPECT_EQ(text(5), "") << "the choice is never kept";
  EXPECT_EQ(text(6), "früh los");
}

TEST_F(EingabeMasken, NachDerWanderungBleibtEsInDieserOeffnungBeiFuenfundzwanzigZeilen) {
  oeffne(6);
  klicke("opti_7");
  sichern(7);
  EXPECT_EQ(Textdatei::lesen(datei(7)).size(), 25) << "slot 5 keeps its last dressing";
  form->close();
  oeffne(7);
  sichern(7);
  EXPECT_EQ(Textdatei::lesen(datei(7)).size(), 26);
}

TEST_F(EingabeMasken, DieStockkarteKommtWieGesichertAuchWennDieWabenNichtDieSummeSind) {
  oeffne(0);
  tippe(13, "6");
  tippe(11, "20");
  tippe(10, "4");
  tippe(18, "2");
  tippe(11, "20");
  tippe(10, "4");
  sichern(0);
  klicke("nextvolk1_1");
  klicke("standard_1");
  EXPECT_EQ(text(10), "4");
  EXPECT_EQ(text(11), "20");
  EXPECT_EQ(text(13), "6");
  EXPECT_EQ(text(18), "2");
  EXPECT_EQ(schild("bezmw"), "");
}

TEST_F(EingabeMasken, OhneDateiGeschiehtNichts) {
  oeffne(5);
  tippe(1, "Füttern");
  klicke("standard_1");
  EXPECT_EQ(text(1), "Füttern");
}

TEST_F(EingabeMasken, EineKurzeDateiFuelltNurDieErstenPlaetze) {
  Textdatei::schreiben(datei(5), {"Schleudern", "2,00"});
  oeffne(5);
  tippe(4, "bleibt");
  klicke("standard_1");
  EXPECT_EQ(text(1), "Schleudern");
  EXPECT_EQ(text(2), "2,00");
  EXPECT_EQ(text(4), "bleibt");
}

TEST_F(EingabeMasken, DieNotizWirdNieGesichert) {
  oeffne(10);
  notiz()->setFocus();
  tasten(notiz(), "geheim");
  sichern(10);
  EXPECT_FALSE(Textdatei::lesenGanz(datei(10)).contains("geheim"));
  notiz()->clear();
  klicke("standard_1");
  EXPECT_EQ(notiz()->toPlainText(), "");
}

TEST_F(EingabeMasken, EinOrdnerStattDerDateiWirdGemeldet) {
  QDir().mkpath(datei(5));
  oeffne(5);
  boxen.hinweisMit("TOVA_TE_EINGABE_STD5.TV2");
  klicke("standard_0");
  EXPECT_EQ(boxen.fehler(), "");
}

class EingabeTexte : public Eingabeprobe {
 protected:
  // 10,000 characters with all that hurts.
  static QString langerText() {
    const QString stueck = QString::fromUtf8("Hans' \"Bienen\"\t`x` -- ; € ß Ä\xF0\x9F\x90\x9D\n");
    QString text;
    while (text.size() + stueck.size() <= 10000) text += stueck;
    while (text.size() < 10000) text += 'z';
    return text;
  }
};

TEST_F(EingabeTexte, ZehntausendZeichenInEinTextfeldWerdenAufSeineLaengeGekuerzt) {
  oeffne(5);
  fuegeEin(feld(4), langerText());
  // The 30th would be the first half of the bee.
  const QString erwartet = QString::fromUtf8("Hans' \"Bienen\" `x` -- ; € ß Ä");
  ASSERT_EQ(erwartet.size(), 29);
  EXPECT_EQ(text(4), erwartet) << "half an emoji is none";
  tippe(1, "Füttern");
  klicke("neu_0");
  const QString gespeichert = QString(erwartet).replace('\'', '`');
  EXPECT_EQ(wert("select Bemerkung from Arbeiten"), gespeichert);
  EXPECT_EQ(text(4), gespeichert);
}

TEST_F(EingabeTexte, JedesTextfeldJederArtNimmtVonZehntausendZeichenWasHineinpasst) {
  const QString sauber = langerText().replace('\t', ' ').replace('\n', ' ');
  const auto gekuerzt = [&](const Buchungsslot& slot) {
    const QString anfang = sauber.left(slot.laenge);
    return anfang.back().isHighSurrogate() ? anfang.chopped(1) : anfang;
  };
  oeffne(0);
  int geprueft = 0;
  for (int art = 0; art < 10; ++art) {
    klicke("opti_" + QString::number(art));
    const Buchungstyp& typ = buchungstyp(art);
    for (const Buchungsslot& slot : typ.plaetze) {
      if (slot.art != Slotart::Text) continue;
      fuegeEin(feld(slot.nummer), langerText());
      EXPECT_EQ(text(slot.nummer), gekuerzt(slot)) << qPrintable(typ.tabelle + "." + slot.feld);
    }
    klicke("neu_0");
    for (const Buchungsslot& slot : typ.plaetze) {
      if (slot.art != Slotart::Text) continue;
      const QString gespeichert = gekuerzt(slot).replace('\'', '`').trimmed();
      EXPECT_EQ(wert("select " + slot.feld + " from " + typ.tabelle), gespeichert);
      EXPECT_EQ(text(slot.nummer), gespeichert);
      ++geprueft;
    }
  }
  EXPECT_EQ(geprueft, 26);
}

TEST_F(EingabeTexte, EineNotizVonZehntausendZeichenKommtVollstaendigZurueck) {
  oeffne(10);
  fuegeEin(notiz(), langerText());
  klicke("neu_0");
  QString erwartet = langerText().replace('\'', '`');
  EXPECT_EQ(notiz()->toPlainText(), erwartet);
  EXPECT_EQ(wert("select Notiz from Notizen"), erwartet.replace('\n', "\r\n"));
  klicke("opti_5");
  klicke("opti_10");
  EXPECT_EQ(notiz()->toPlainText(), langerText().replace('\'', '`'));
}

TEST_F(EingabeTexte, ZahlenBleibenZahlenWieAuchImmerSieEingegebenWerden) {
  struct Fall {
    const char* eingabe;
    const char* getippt;  // what stands in the slot after typing it key by key
    double gespeichert;
  };
  // No sign, no letter gets in; the point is a comma, and there is only one.
  const Fall faelle[] = {{"12,5", "12,5", 12.5}, {"1.234,56", "1,23", 1.23},
                         {"-3", "3", 3},         {"1e9", "19", 19},
                         {"abc", "", 0},         {"0,005", "0,00", 0}};
  oeffne(1);
  for (const Fall& fall : faelle) {
    DB.Execute("delete from Honigernte");
    feld(1)->setFocus();
    feld(1)->clear();
    tasten(feld(1), fall.eingabe);
    EXPECT_EQ(text(1), fall.getippt) << fall.eingabe;
    klicke("neu_0");
    EXPECT_EQ(wert("select Menge_kg from Honigernte").toDouble(), fall.gespeichert) << fall.eingabe;
  }
}

TEST_F(EingabeTexte, EingefuegteZahlenWerdenGanzOderGarNichtGenommen) {
  oeffne(1);
  fuegeEin(feld(1), "1.234,56");
  EXPECT_EQ(text(1), "1234,56");
  klicke("neu_0");
  EXPECT_EQ(wert("select Menge_kg from Honigernte").toDouble(), 1234.56);
  for (const char* unfug : {"-3", "1e9", "abc", "1,2,3", "99999999999"}) {
    fuegeEin(feld(1), "7,5");
    fuegeEin(feld(1), unfug);
    EXPECT_EQ(text(1), "7,5") << unfug;
  }
}

TEST_F(EingabeTexte, InGanzzahlenKommenNurZiffern) {
  const QList<std::pair<QString, QString>> getippt{
      {"1.234,56", "1234"}, {"-3", "3"}, {"1e9", "19"}, {"abc", ""}, {"12345", "1234"}};
  oeffne(3);
  for (const auto& [eingabe, steht] : getippt) {
    feld(1)->setFocus();
    feld(1)->clear();
    tasten(feld(1), eingabe);
    EXPECT_EQ(text(1), steht) << qPrintable(eingabe);
  }
  for (const char* unfug : {"1.234,56", "-3", "1e9", "abc", "12345"}) {
    fuegeEin(feld(1), "77");
    fuegeEin(feld(1), unfug);
    EXPECT_EQ(text(1), "77") << unfug;
  }
}

TEST_F(EingabeTexte, DatumskurzformenWerdenBeimVerlassenErgaenztUndUnfugBleibtStehen) {
  const QList<std::pair<QString, QString>> faelle{{"1.1", "01.01.2026"},
                                                  {"010126", "01.01.2026"},
                                                  {"32", "03.02.2026"},
                                                  {"31.2.2026", "31.2.2026"}};
  oeffne(5);
  for (const auto& [eingabe, steht] : faelle) {
    tippe(0, eingabe);
    taste(feld(0), Qt::Key_Tab);
    EXPECT_EQ(text(0), steht);
    EXPECT_EQ(feld(0)->hatWarnung(), steht == "31.2.2026");
    fuegeEin(feld(0), " " + eingabe + "\n");
    taste(feld(0), Qt::Key_Tab);
    EXPECT_EQ(text(0), steht) << "pasted";
  }
  tippe(0, "05.06.2026");
  fuegeEin(feld(0), "abc");
  feld(0)->setFocus();
  feld(0)->selectAll();
  tasten(feld(0), "x");
  EXPECT_EQ(text(0), "05.06.2026") << "typed over the marked date";
  fuegeEin(feld(0), langerText());
  EXPECT_EQ(text(0), "05.06.2026");
}

TEST_F(EingabeTexte, GanzzahlenHaltenIhreGrenze) {
  oeffne(0);
  tippe(20, "100");
  EXPECT_EQ(text(20), "100");
  tippe(20, "101");
  EXPECT_EQ(text(20), "10");
  tippe(10, "12");
  EXPECT_EQ(text(10), "1");
  tippe(1, "12,5");
  EXPECT_EQ(text(1), "12,5") << "a score is any decimal of four characters";
}

TEST_F(EingabeTexte, EinApostrophImListenwertStoertKeineVorgabe) {
  zeile("Behandlung", 2, "2025-08-01", {{"Behandlungsart", "Opa`s Art"}, {"Mittel", "Rauch"}});
  oeffne(8);
  tippe(1, "Opa's Art");
  taste(feld(1), Qt::Key_Tab);
  EXPECT_EQ(text(2), "Rauch");
}

}  // namespace
