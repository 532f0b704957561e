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

TEST_F(EingabeMasken, EineMaskeKommtZurückAberOhneDatum) {
  öffne(5);
  tippe("Datum", "01.02.2026");
  tippe("Arbeitsart", "Füttern; groß");
  tippe("Zeit (h)", "1,25");
  tippe("Bemerkung", "mit Zuckerwasser");
  sichern(5);
  klicke("nextvolk1_1");
  tippe("Datum", "03.02.2026");
  EXPECT_EQ(text("Arbeitsart"), "");
  klicke("standard_1");
  EXPECT_EQ(text("Datum"), "03.02.2026");
  EXPECT_EQ(text("Arbeitsart"), "Füttern; groß");
  EXPECT_EQ(text("Zeit (h)"), "1,25");
  EXPECT_EQ(text("Bemerkung"), "mit Zuckerwasser");
  EXPECT_EQ(Textdatei::lesen(datei(5)).size(), 26);
}

TEST_F(EingabeMasken, DieMaskeDerWanderungHatEineZeileWeniger) {
  öffne(6);
  tippe("Standort", "Heide");
  feld("Prämie erhalten JN")->setFocus();
  tasten(feld("Prämie erhalten JN"), "J");
  tippe("Bemerkung", "früh los");
  sichern(6);
  EXPECT_EQ(Textdatei::lesen(datei(6)).size(), 25);
  klicke("nextvolk1_1");
  klicke("standard_1");
  EXPECT_EQ(text("Standort"), "Heide");
  EXPECT_EQ(text("Prämie erhalten JN"), "") << "the choice is never kept";
  EXPECT_EQ(text("Bemerkung"), "früh los");
}

TEST_F(EingabeMasken, NachDerWanderungBleibtEsInDieserÖffnungBeiFünfundzwanzigZeilen) {
  öffne(6);
  klicke("opti_7");
  sichern(7);
  EXPECT_EQ(Textdatei::lesen(datei(7)).size(), 25) << "slot 5 keeps its last dressing";
  form->close();
  öffne(7);
  sichern(7);
  EXPECT_EQ(Textdatei::lesen(datei(7)).size(), 26);
}

TEST_F(EingabeMasken, DieStockkarteKommtWieGesichertAuchWennDieWabenNichtDieSummeSind) {
  öffne(0);
  tippe("Brutwaben", "6");
  tippe("Waben", "20");
  tippe("Magazine", "4");
  tippe("Mittelwände", "2");
  tippe("Waben", "20");
  tippe("Magazine", "4");
  sichern(0);
  klicke("nextvolk1_1");
  klicke("standard_1");
  EXPECT_EQ(text("Magazine"), "4");
  EXPECT_EQ(text("Waben"), "20");
  EXPECT_EQ(text("Brutwaben"), "6");
  EXPECT_EQ(text("Mittelwände"), "2");
  EXPECT_EQ(schild("bezmw"), "");
}

TEST_F(EingabeMasken, OhneDateiGeschiehtNichts) {
  öffne(5);
  tippe("Arbeitsart", "Füttern");
  klicke("standard_1");
  EXPECT_EQ(text("Arbeitsart"), "Füttern");
}

TEST_F(EingabeMasken, EineKurzeDateiFülltNurDieErstenPlätze) {
  Textdatei::schreiben(datei(5), {"Schleudern", "2,00"});
  öffne(5);
  tippe("Bemerkung", "bleibt");
  klicke("standard_1");
  EXPECT_EQ(text("Arbeitsart"), "Schleudern");
  EXPECT_EQ(text("Zeit (h)"), "2,00");
  EXPECT_EQ(text("Bemerkung"), "bleibt");
}

TEST_F(EingabeMasken, DieNotizWirdNieGesichert) {
  öffne(10);
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
  öffne(5);
  boxen.hinweisMit("TOVA_TE_EINGABE_STD5.TV2");
  klicke("standard_0");
  EXPECT_EQ(boxen.fehler(), "");
}

class EingabeTexte : public Eingabeprobe {
 protected:
  // 10,000 characters with all that hurts.
  static QString langerText() {
    const QString stück = QString::fromUtf8("Hans' \"Bienen\"\t`x` -- ; € ß Ä\xF0\x9F\x90\x9D\n");
    QString text;
    while (text.size() + stück.size() <= 10000) text += stück;
    while (text.size() < 10000) text += 'z';
    return text;
  }
};

TEST_F(EingabeTexte, ZehntausendZeichenInEinTextfeldWerdenAufSeineLängeGekürzt) {
  öffne(5);
  fügeEin(feld("Bemerkung"), langerText());
  // The 30th would be the first half of the bee.
  const QString erwartet = QString::fromUtf8("Hans' \"Bienen\" `x` -- ; € ß Ä");
  ASSERT_EQ(erwartet.size(), 29);
  EXPECT_EQ(text("Bemerkung"), erwartet) << "half an emoji is none";
  tippe("Arbeitsart", "Füttern");
  klicke("neu_0");
  const QString gespeichert = QString(erwartet).replace('\'', '`');
  EXPECT_EQ(wert("select Bemerkung from Arbeiten"), gespeichert);
  EXPECT_EQ(text("Bemerkung"), gespeichert);
}

TEST_F(EingabeTexte, JedesTextfeldJederArtNimmtVonZehntausendZeichenWasHineinpasst) {
  const QString sauber = langerText().replace('\t', ' ').replace('\n', ' ');
  const auto gekürzt = [&](const Buchungsslot& slot) {
    const QString anfang = sauber.left(slot.maxLänge);
    return anfang.back().isHighSurrogate() ? anfang.chopped(1) : anfang;
  };
  öffne(0);
  int geprüft = 0;
  for (int art = 0; art < 10; ++art) {
    klicke("opti_" + QString::number(art));
    const Buchungstyp& typ = buchungstyp(art);
    for (const Buchungsslot& slot : typ.plätze) {
      if (slot.art != Verwaltung::Art::Text) continue;
      fügeEin(feld(slot.nummer), langerText());
      EXPECT_EQ(text(slot.nummer), gekürzt(slot)) << qPrintable(typ.tabelle + "." + slot.feld);
    }
    klicke("neu_0");
    for (const Buchungsslot& slot : typ.plätze) {
      if (slot.art != Verwaltung::Art::Text) continue;
      const QString gespeichert = gekürzt(slot).replace('\'', '`').trimmed();
      EXPECT_EQ(wert("select " + slot.feld + " from " + typ.tabelle), gespeichert);
      EXPECT_EQ(text(slot.nummer), gespeichert);
      ++geprüft;
    }
  }
  EXPECT_EQ(geprüft, 26);
}

TEST_F(EingabeTexte, EineNotizVonZehntausendZeichenKommtVollständigZurück) {
  öffne(10);
  fügeEin(notiz(), langerText());
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
  // No sign, no letter gets in, and nothing behind one; the last point or comma is the decimal one.
  const Fall fälle[] = {{"12,5", "12,5", 12.5}, {"1.234,56", "1.234,56", 1234.56},
                        {"12.5", "12.5", 12.5}, {"-3", "", 0},
                        {"1e9", "1", 1},        {"abc", "", 0},
                        {"0,005", "0,00", 0}};
  öffne(1);
  for (const Fall& fall : fälle) {
    DB.Execute("delete from Honigernte");
    feld("Menge (kg)")->setFocus();
    feld("Menge (kg)")->clear();
    tasten(feld("Menge (kg)"), fall.eingabe);
    EXPECT_EQ(text("Menge (kg)"), fall.getippt) << fall.eingabe;
    klicke("neu_0");
    EXPECT_EQ(wert("select Menge_kg from Honigernte").toDouble(), fall.gespeichert) << fall.eingabe;
  }
}

TEST_F(EingabeTexte, EingefügteZahlenWerdenGanzOderGarNichtGenommen) {
  öffne(1);
  fügeEin(feld("Menge (kg)"), "1.234,56");
  EXPECT_EQ(text("Menge (kg)"), "1234,56");
  klicke("neu_0");
  EXPECT_EQ(wert("select Menge_kg from Honigernte").toDouble(), 1234.56);
  for (const char* unfug : {"-3", "1e9", "abc", "1,2,3", "99999999999"}) {
    fügeEin(feld("Menge (kg)"), "7,5");
    fügeEin(feld("Menge (kg)"), unfug);
    EXPECT_EQ(text("Menge (kg)"), "7,5") << unfug;
  }
}

TEST_F(EingabeTexte, InGanzzahlenKommenNurZiffern) {
  const QList<std::pair<QString, QString>> getippt{
      {"1.234,56", "1"}, {"-3", ""}, {"1e9", "1"}, {"abc", ""}, {"12345", "1234"}};
  öffne(3);
  for (const auto& [eingabe, steht] : getippt) {
    feld("Menge (g)")->setFocus();
    feld("Menge (g)")->clear();
    tasten(feld("Menge (g)"), eingabe);
    EXPECT_EQ(text("Menge (g)"), steht) << qPrintable(eingabe);
  }
  for (const char* unfug : {"1.234,56", "-3", "1e9", "abc", "12345"}) {
    fügeEin(feld("Menge (g)"), "77");
    fügeEin(feld("Menge (g)"), unfug);
    EXPECT_EQ(text("Menge (g)"), "77") << unfug;
  }
}

TEST_F(EingabeTexte, DatumskurzformenWerdenBeimVerlassenErgänztUndUnfugBleibtStehen) {
  const QList<std::pair<QString, QString>> fälle{{"1.1", "01.01.2026"},
                                                 {"010126", "01.01.2026"},
                                                 {"32", "03.02.2026"},
                                                 {"31.2.2026", "31.2.2026"}};
  öffne(5);
  for (const auto& [eingabe, steht] : fälle) {
    tippe("Datum", eingabe);
    taste(feld("Datum"), Qt::Key_Tab);
    EXPECT_EQ(text("Datum"), steht);
    EXPECT_EQ(feld("Datum")->hatWarnung(), steht == "31.2.2026");
    fügeEin(feld("Datum"), " " + eingabe + "\n");
    taste(feld("Datum"), Qt::Key_Tab);
    EXPECT_EQ(text("Datum"), steht) << "pasted";
  }
  tippe("Datum", "05.06.2026");
  fügeEin(feld("Datum"), "abc");
  feld("Datum")->setFocus();
  feld("Datum")->selectAll();
  tasten(feld("Datum"), "x");
  EXPECT_EQ(text("Datum"), "05.06.2026") << "typed over the marked date";
  fügeEin(feld("Datum"), langerText());
  EXPECT_EQ(text("Datum"), "05.06.2026");
}

TEST_F(EingabeTexte, GanzzahlenHaltenIhreGrenze) {
  öffne(0);
  tippe("HW_verdeckelt%", "100");
  EXPECT_EQ(text("HW_verdeckelt%"), "100");
  tippe("HW_verdeckelt%", "101");
  EXPECT_EQ(text("HW_verdeckelt%"), "10");
  tippe("Magazine", "12");
  EXPECT_EQ(text("Magazine"), "1");
  tippe("Volksstärke", "12,5");
  EXPECT_EQ(text("Volksstärke"), "12,5") << "a score is any decimal of four characters";
}

TEST_F(EingabeTexte, EinApostrophImListenwertStörtKeineVorgabe) {
  zeile("Behandlung", 2, "2025-08-01", {{"Behandlungsart", "Opa`s Art"}, {"Mittel", "Rauch"}});
  öffne(8);
  tippe("Behandlungsart", "Opa's Art");
  taste(feld("Behandlungsart"), Qt::Key_Tab);
  EXPECT_EQ(text("Mittel"), "Rauch");
}

}  // namespace
