#include "mainform/Menue.h"

#include <QLineEdit>
#include <QMenu>
#include <QSet>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>

#include "Hauptumfeld.h"
#include "gemeinsam/Bildschirm.h"

using namespace TZ_Variablen;

class Hauptmenü : public Hauptumfeld {
 protected:
  QAction* popup(int index) const { return aktion(QStringLiteral("popzeile_%1").arg(index)); }
};

TEST_F(Hauptmenü, AlleEinträgeUndTastenStehenUnterIhremNamen) {
  völker(1);
  starten();
  for (const auto& menü : Menü::menüs()) {
    EXPECT_EQ(finde<QMenu>(menü.name)->title(), menü.titel);
    for (const auto& eintrag : menü.einträge)
      EXPECT_EQ(aktion(eintrag.name)->text(), eintrag.titel);
  }
  for (const auto& taste : Menü::tasten()) {
    EXPECT_FALSE(aktion(taste.name)->icon().pixmap(24, 24).isNull()) << qPrintable(taste.symbol);
    EXPECT_EQ(aktion(taste.name)->toolTip() + " ",
              QString(Menü::eintrag(taste.eintrag).titel).remove(u'&').trimmed() + " ");
  }
}

TEST_F(Hauptmenü, WasNochKeineFormHatBleibtAuchMitVölkernGesperrt) {
  völker(2);
  starten();
  QStringList frei;
  for (const auto& menü : Menü::menüs())
    for (const auto& eintrag : menü.einträge)
      if (aktion(eintrag.name)->isEnabled()) frei << eintrag.name;
  EXPECT_EQ(frei, QStringList({"XV_neuevölker",
                               "XV_volkändern",
                               "XV_volklöschen",
                               "XV_völkerselektieren",
                               "XV_selektiertevölkermarkieren",
                               "XV_markiertevölkerselektieren",
                               "XV_beenden",
                               "XE_stockkarte",
                               "XE_honigernte",
                               "XE_wachsernte",
                               "XE_pollenernte",
                               "XE_sonstigeernte",
                               "XE_arbeiten",
                               "XE_wanderung",
                               "XE_gewichtsmessung",
                               "XE_behandlung",
                               "XE_Königinenwechsel",
                               "XE_Notizen",
                               "XW_Völker",
                               "XW_Völkerbuchungenstandard",
                               "XW_Völkerbuchungen",
                               "XW_Stockkarten",
                               "XW_Listengenerator",
                               "XW_Arbeitspläne",
                               "XW_Deckungsbeiträge",
                               "XW_Arbeitszeiten",
                               "XW_Statistiken",
                               "XW_Gruppierungen",
                               "XW_Grafiken",
                               "XW_Standorte",
                               "XW_Einverkauf",
                               "XW_Honiglager",
                               "XV_standorte",
                               "XV_pflanzen",
                               "XV_Arbeitsplanoptionen",
                               "XV_Termine",
                               "XV_Aktuelle_Termine",
                               "XV_einkauf",
                               "XV_verkauf",
                               "XV_honiglager",
                               "O_Einstellungen",
                               "O_Datenbankkomprimieren",
                               "O_volkabhängigeterminesetzen",
                               "O_Interakt",
                               "hilfewieanfangen",
                               "hilfestartmenue",
                               "hilfewiemacheich"}));
  QStringList tasten;
  for (const auto& taste : Menü::tasten())
    if (aktion(taste.name)->isEnabled()) tasten << taste.name;
  EXPECT_EQ(tasten,
            QStringList({"btn_neuesvolk",     "btn_volkändern",      "btn_e_stockkarte",
                         "btn_e_honigernte",  "btn_e_wachsernte",    "btn_e_arbeiten",
                         "btn_e_wanderung",   "btn_e_behandlung",    "btn_a_völker",
                         "btn_a_buchungen",   "btn_a_arbeitspläne",  "btn_a_deckungsbeiträge",
                         "btn_a_statistiken", "btn_a_gruppierungen", "btn_a_standorte",
                         "btn_grafik",        "btn_v_standorte",     "btn_v_Arbeitsplanoptionen",
                         "btn_v_termine",     "btn_v_honiglager",    "btn_o_einstellungen"}));
}

TEST_F(Hauptmenü, OhneZeileSindVolkUndBuchungenGesperrt) {
  völker(1);
  starten();
  form->setAktuelleZeile(-1);
  for (const char* name :
       {"XV_volkändern",    "XV_volklöschen",     "XE_stockkarte",    "XE_honigernte",
        "XE_wachsernte",    "XE_pollenernte",     "XE_sonstigeernte", "XE_arbeiten",
        "XE_wanderung",     "XE_gewichtsmessung", "XE_behandlung",    "XE_Königinenwechsel",
        "XE_Notizen",       "btn_volkändern",     "btn_e_stockkarte", "btn_e_honigernte",
        "btn_e_wachsernte", "btn_e_arbeiten",     "btn_e_wanderung",  "btn_e_behandlung"})
    EXPECT_FALSE(aktion(QString::fromUtf8(name))->isEnabled()) << name;
  for (int i = 1; i <= 14; ++i) EXPECT_FALSE(popup(i)->isEnabled()) << i;
  EXPECT_TRUE(popup(0)->isEnabled());
  EXPECT_TRUE(aktion("XV_neuevölker")->isEnabled());
  form->setAktuelleZeile(0);
  for (int i = 1; i <= 14; ++i) EXPECT_TRUE(popup(i)->isEnabled()) << i;
  EXPECT_TRUE(aktion("XE_Notizen")->isEnabled());
}

TEST_F(Hauptmenü, PopupOhneMarkierungBittetUmEinVolk) {
  völker(1);
  starten();
  form->setMarkierteZeilen({});
  for (const int index : {1, 2, 4, 14}) {
    probe.hinweis(
        "Bitte markieren Sie zuerst das Volk, das Sie ändern oder löschen möchten oder bei dem "
        "Sie Buchungen eintragen möchten!");
    popup(index)->trigger();
    EXPECT_EQ(probe.fehler().toStdString(), "") << index;
  }
}

TEST_F(Hauptmenü, PopupNeuGehtAuchOhneMarkierung) {
  völker(1);
  starten();
  form->setMarkierteZeilen({});
  Formbesuch besuch("TV_Neues_Volk");
  popup(0)->trigger();
  EXPECT_TRUE(besuch.war());
  EXPECT_EQ(VolkModus, QStringLiteral("Neu"));
}

TEST_F(Hauptmenü, RechteMaustasteÖffnetDasPopup) {
  völker(1);
  starten();
  auto* menü = finde<QMenu>("popupliste");
  const QPoint ort = zeilenmitte(0);
  QContextMenuEvent ereignis(QContextMenuEvent::Mouse, ort, datali()->viewport()->mapToGlobal(ort));
  QApplication::sendEvent(datali()->viewport(), &ereignis);
  QApplication::processEvents();
  EXPECT_TRUE(menü->isVisible());
  menü->close();
}

TEST_F(Hauptmenü, NeuesVolkUndÄndernSetzenDenModus) {
  völker(1);
  starten();
  {
    Formbesuch besuch("TV_Neues_Volk", [](QWidget*) { EXPECT_EQ(VolkModus, "Neu"); });
    aktion("XV_neuevölker")->trigger();
    EXPECT_TRUE(besuch.war());
  }
  Formbesuch besuch("TV_Neues_Volk", [](QWidget*) { EXPECT_EQ(VolkModus, "Ändern"); });
  aktion("XV_volkändern")->trigger();
  EXPECT_TRUE(besuch.war());
}

TEST_F(Hauptmenü, NeuesVolkStehtNachDemSchließenInDerListe) {
  völker(1);
  starten();
  Formbesuch besuch("TV_Neues_Volk", [](QWidget* neu) {
    auto* nummer = neu->findChild<QLineEdit*>("sevt_0");
    nummer->selectAll();
    QTest::keyClicks(nummer, "99");
    QTest::mouseClick(neu->findChild<QAbstractButton*>("ok"), Qt::LeftButton);
  });
  aktion("XV_neuevölker")->trigger();
  EXPECT_TRUE(besuch.war());
  EXPECT_EQ(nummern(), QStringList({"1", "99"}));
  EXPECT_EQ(filtertexte()[0], QStringLiteral("Bestand (2 Völker)"));
}

TEST_F(Hauptmenü, JedeBuchungÖffnetDieEingabeMitIhrerArt) {
  völker(1);
  starten();
  const QStringList namen = {"XE_stockkarte",       "XE_honigernte",      "XE_wachsernte",
                             "XE_pollenernte",      "XE_sonstigeernte",   "XE_arbeiten",
                             "XE_wanderung",        "XE_gewichtsmessung", "XE_behandlung",
                             "XE_Königinenwechsel", "XE_Notizen"};
  QSet<QWidget*> formen;
  for (int art = 0; art < namen.size(); ++art) {
    int gesehen = -1;
    Formbesuch besuch("TE_Eingabe", [&](QWidget* eingabe) {
      gesehen = BuchungsArt;
      formen.insert(eingabe);
    });
    aktion(namen[art])->trigger();
    EXPECT_TRUE(besuch.war());
    EXPECT_EQ(gesehen, art);
  }
  EXPECT_EQ(formen.size(), 1);  // one instance
}

TEST_F(Hauptmenü, TasteDerLeisteHandeltWieIhrEintrag) {
  völker(1);
  starten();
  Formbesuch besuch("TE_Eingabe", [](QWidget*) { EXPECT_EQ(BuchungsArt, 1); });
  QTest::mouseClick(finde<QToolButton>("btn_e_honigernte"), Qt::LeftButton);
  EXPECT_TRUE(besuch.war());
}

TEST_F(Hauptmenü, StandorteUndPflanzenÖffnenDieselbeFormAufIhremReiter) {
  völker(1);
  starten();
  for (const auto& [eintrag, reiter] :
       {std::pair("XV_standorte", 0), {"XV_pflanzen", 2}, {"btn_v_standorte", 0}}) {
    int gesehen = -1;
    Formbesuch besuch("TV_Pflanzen_Standorte", [&](QWidget* orte) {
      gesehen = orte->findChild<QTabWidget*>("reiter")->currentIndex();
    });
    aktion(eintrag)->trigger();
    EXPECT_TRUE(besuch.war()) << eintrag;
    EXPECT_EQ(gesehen, reiter) << eintrag;
  }
}

TEST_F(Hauptmenü, EinkaufVerkaufUndHoniglagerÖffnenDieselbeFormAufIhremReiter) {
  völker(1);
  starten();
  for (const auto& [eintrag, reiter] : {std::pair("XV_einkauf", 0),
                                        {"XV_verkauf", 1},
                                        {"XV_honiglager", 2},
                                        {"btn_v_honiglager", 2}}) {
    int gesehen = -1;
    Formbesuch besuch("TV_EinVerkauf_Lager", [&](QWidget* handel) {
      gesehen = handel->findChild<QTabWidget*>("reiter")->currentIndex();
    });
    aktion(eintrag)->trigger();
    EXPECT_TRUE(besuch.war()) << eintrag;
    EXPECT_EQ(gesehen, reiter) << eintrag;
  }
}

TEST_F(Hauptmenü, ArbeitsplanoptionenGehenÜberMenüUndTaste) {
  völker(1);
  starten();
  for (const char* name : {"XV_Arbeitsplanoptionen", "btn_v_Arbeitsplanoptionen"}) {
    Formbesuch besuch("TV_Arplanoptionen");
    aktion(name)->trigger();
    EXPECT_TRUE(besuch.war()) << name;
  }
}

TEST_F(Hauptmenü, TermineGehenÜberMenüUndTaste) {
  völker(1);
  starten();
  for (const char* name : {"XV_Termine", "btn_v_termine"}) {
    Formbesuch besuch("TV_Terminverwaltung");
    aktion(name)->trigger();
    EXPECT_TRUE(besuch.war()) << name;
  }
  Formbesuch besuch("TV_Starttermine");
  aktion("XV_Aktuelle_Termine")->trigger();
  EXPECT_TRUE(besuch.war());
}

TEST_F(Hauptmenü, AusDenArbeitsplanoptionenGehtEsInDieTerminverwaltung) {
  völker(1);
  starten();
  bool termineOffen = false;
  Formbesuch besuch("TV_Arplanoptionen", [&](QWidget* plan) {
    Formbesuch termine("TV_Terminverwaltung", [&](QWidget*) { termineOffen = true; });
    QTest::mouseClick(plan->findChild<QAbstractButton*>("terminverwaltung"), Qt::LeftButton);
  });
  aktion("XV_Arbeitsplanoptionen")->trigger();
  EXPECT_TRUE(besuch.war());
  EXPECT_TRUE(termineOffen);
}

TEST_F(Hauptmenü, TermineSetzenFragtUndSchreibtDieTermineDesJahres) {
  völker(1);
  starten();
  probe.frageMit("Sie starten TOVA das erste mal im neuen Jahr oder haben die Funktion", false);
  aktion("O_volkabhängigeterminesetzen")->trigger();
  EXPECT_EQ(DB.Lesen("select ID from Termine")->zeilen(), 0);
  probe.frageMit("ab dem heutigen Datum 15.06.2024 allen im Bestand", true)
      .hinweis(
          "Die volkabhängigen Termine wurden für das Jahr 2024 neu berechnet und im "
          "Terminkalender eingetragen.");
  aktion("O_volkabhängigeterminesetzen")->trigger();
  EXPECT_GT(DB.Lesen("select ID from Termine where Termin = 'Einwinterung'")->zeilen(), 0);
}

TEST_F(Hauptmenü, LöschenFragtMitNeinAlsVorgabe) {
  völker(2);
  starten();
  const QString frage =
      "Das Löschen eines Volkes entfernt das markierte Volk unwiederbringlich mit allen zu diesem "
      "Volk gehörenden Buchungen aus der Datenbank.\n\nSoll das markierte Volk wirklich gelöscht "
      "werden?";
  probe.frage(frage, false, Meldungen::Vorgabe::Nein);
  aktion("XV_volklöschen")->trigger();
  EXPECT_EQ(nummern(), QStringList({"1", "2"}));
  probe.frage(frage, true, Meldungen::Vorgabe::Nein);
  popup(2)->trigger();
  EXPECT_EQ(nummern(), QStringList({"2"}));
  EXPECT_EQ(AktVolkID, QStringLiteral("2"));
  EXPECT_EQ(filtertexte()[0], QStringLiteral("Bestand (1 Völker)"));
  EXPECT_EQ(DB.Lesen("select ID from Bienenvolk")->zeilen(), 1);
}

TEST_F(Hauptmenü, NachDemLetztenVolkSindDieBuchungenGesperrt) {
  völker(1);
  starten();
  probe.frageMit("Soll das markierte Volk wirklich gelöscht werden?", true);
  aktion("XV_volklöschen")->trigger();
  EXPECT_EQ(form->zeilen(), 0);
  EXPECT_FALSE(aktion("XE_stockkarte")->isEnabled());
  EXPECT_TRUE(finde<QLabel>("leerhinweis")->isVisible());
}

TEST_F(Hauptmenü, HilfeEinträgeÖffnenIhrThema) {
  völker(1);
  dateiSchreiben(
      "HILFETOVA.HLP",
      "Hilfe_Startmenue\r\nDas Menue\r\n#ende#\r\nHilfe_Wiemacheich\r\nSo\r\n#ende#\r\n");
  starten();
  for (const auto& [eintrag, thema] : {std::pair("hilfestartmenue", "Hilfe_Startmenue"),
                                       {"hilfewiemacheich", "Hilfe_Wiemacheich"}}) {
    Formbesuch besuch("TH_Hilfe", [&](QWidget*) { EXPECT_EQ(HilfeThema, thema); });
    aktion(eintrag)->trigger();
    EXPECT_TRUE(besuch.war()) << eintrag;
  }
}

TEST_F(Hauptmenü, FehlendeHilfedateiWirdGenannt) {
  völker(1);
  starten();
  probe.hinweis("Die Hilfedatei " + datei("HILFETOVA.HLP") + " existiert nicht!");
  aktion("hilfestartmenue")->trigger();
}

TEST_F(Hauptmenü, F1ZeigtDieHilfeDesHauptformulars) {
  völker(1);
  dateiSchreiben("HILFETOVA.HLP", "TA_TOVA\r\nText\r\n#ende#\r\n");
  starten();
  Formbesuch besuch("TH_Hilfe", [](QWidget*) { EXPECT_EQ(HilfeThema, "TA_TOVA"); });
  QTest::keyClick(datali(), Qt::Key_F1);
  EXPECT_TRUE(besuch.war());
}

TEST_F(Hauptmenü, F1AufEinemMenüZeigtDessenThema) {
  völker(1);
  dateiSchreiben("HILFETOVA.HLP", "Hilfe_Optionen\r\nText\r\n#ende#\r\n");
  starten();
  auto* menü = finde<QMenu>("O_Optionen");
  menü->popup(form->mapToGlobal(QPoint(10, 10)));
  Formbesuch besuch("TH_Hilfe", [](QWidget*) { EXPECT_EQ(HilfeThema, "Hilfe_Optionen"); });
  QTest::keyClick(menü, Qt::Key_F1);
  EXPECT_TRUE(besuch.war());
}

TEST_F(Hauptmenü, ErsteSchritteHabenDreiKnöpfeUndDerDritteÖffnetDasNeueVolk) {
  völker(1);
  starten();
  bool volkOffen = false;
  bool standorteOffen = false;
  Formbesuch besuch("TH_Hilfe_Wieanfangen", [&](QWidget* hilfe) {
    EXPECT_EQ(hilfe->windowTitle(), QStringLiteral("Die ersten Schritte in TOVA"));
    Formbesuch orte("TV_Pflanzen_Standorte", [&](QWidget*) {
      standorteOffen = true;
      EXPECT_EQ(FormModus, QStringLiteral("0"));
    });
    QTest::mouseClick(hilfe->findChild<QAbstractButton*>("schritt_0"), Qt::LeftButton);
    bool planOffen = false;
    Formbesuch plan("TV_Arplanoptionen", [&](QWidget*) { planOffen = true; });
    QTest::mouseClick(hilfe->findChild<QAbstractButton*>("schritt_1"), Qt::LeftButton);
    EXPECT_TRUE(planOffen);
    Formbesuch volk("TV_Neues_Volk", [&](QWidget*) { volkOffen = true; });
    QTest::mouseClick(hilfe->findChild<QAbstractButton*>("schritt_2"), Qt::LeftButton);
  });
  aktion("hilfewieanfangen")->trigger();
  EXPECT_TRUE(besuch.war());
  EXPECT_TRUE(volkOffen);
  EXPECT_TRUE(standorteOffen);
  EXPECT_EQ(VolkModus, QStringLiteral("Neu"));
}

TEST_F(Hauptmenü, ErsteSchrittePassenAuchMitGroßerSchriftAufDenSchirm) {
  völker(1);
  const Schriftgröße schrift(150);
  starten();
  passtAufKleinenSchirm(*form);
  Formbesuch besuch("TH_Hilfe_Wieanfangen", [](QWidget* hilfe) {
    EXPECT_LE(hilfe->width(), 1366);
    EXPECT_LE(hilfe->height(), 720);
    EXPECT_GE(hilfe->height(), hilfe->minimumSizeHint().height());
  });
  aktion("hilfewieanfangen")->trigger();
  EXPECT_TRUE(besuch.war());
}

// The small screen of a notebook, also with larger letters.
TEST_F(Hauptmenü, AlleTastenDerLeisteSindBei1366PunktenZuSehen) {
  völker(1);
  for (const int prozent : {100, 150}) {
    const Schriftgröße schrift(prozent);
    starten();
    form->resize(1366, 700);
    QApplication::processEvents();
    ASSERT_EQ(form->width(), 1366);
    for (const auto& taste : Menü::tasten()) {
      auto* knopf = finde<QToolButton>(taste.name);
      EXPECT_TRUE(knopf->isVisible()) << qPrintable(taste.name) << " bei Prozent " << prozent;
      EXPECT_LE(knopf->geometry().right(), knopf->parentWidget()->width());
    }
    schließen();
    zurücksetzen();
  }
}

// The words under the symbols: in one row where there is room, in two on small screens. In a window
// too narrow for that the symbols stand alone.
TEST_F(Hauptmenü, TastenDerLeisteZeigenIhreWorte) {
  völker(1);
  starten();
  const auto reihen = [this] {
    QSet<int> höhen;
    for (const auto& taste : Menü::tasten()) {
      auto* knopf = finde<QToolButton>(taste.name);
      EXPECT_TRUE(knopf->isVisible()) << qPrintable(taste.name);
      höhen << knopf->mapTo(form.get(), QPoint()).y();
    }
    return höhen.size();
  };
  const auto mitWorten = [this] {
    QSet<bool> worte;
    for (const auto& taste : Menü::tasten()) {
      auto* knopf = finde<QToolButton>(taste.name);
      const bool ja = knopf->toolButtonStyle() == Qt::ToolButtonTextUnderIcon;
      EXPECT_EQ(knopf->text(), taste.kurztext);
      const int wortbreite = knopf->fontMetrics().horizontalAdvance(taste.kurztext);
      EXPECT_TRUE(!ja || knopf->width() >= wortbreite) << qPrintable(taste.name);
      worte << ja;
    }
    EXPECT_EQ(worte.size(), 1);
    return worte.contains(true);
  };
  // From small to large and back, as someone draws the window.
  for (const auto& [breite, worte, zeilen] : {std::tuple(800, false, 2),
                                              {1024, true, 2},
                                              {1280, true, 2},
                                              {1366, true, 2},
                                              {1920, true, 1},
                                              {1280, true, 2},
                                              {800, false, 2}}) {
    form->resize(breite, 700);
    for (int i = 0; i < 3; ++i) QApplication::processEvents();
    ASSERT_EQ(form->width(), breite);
    EXPECT_EQ(mitWorten(), worte) << breite;
    EXPECT_EQ(reihen(), zeilen) << breite;
  }
}

TEST_F(Hauptmenü, ZweiteReiheBeginntMitDenAuswertungenOhneTrennstrich) {
  völker(1);
  starten();
  form->resize(1024, 700);
  for (int i = 0; i < 3; ++i) QApplication::processEvents();
  const int oben = finde<QToolButton>("btn_neuesvolk")->mapTo(form.get(), QPoint()).y();
  EXPECT_EQ(finde<QToolButton>("btn_e_behandlung")->mapTo(form.get(), QPoint()).y(), oben);
  auto* erster = finde<QToolButton>("btn_a_völker");
  EXPECT_GT(erster->mapTo(form.get(), QPoint()).y(), oben);
  EXPECT_EQ(erster->mapTo(form.get(), QPoint()).x(),
            finde<QToolButton>("btn_neuesvolk")->mapTo(form.get(), QPoint()).x());
}
