#include <QLineEdit>
#include <QMenu>

#include "Eingabehilfen.h"
#include "mainform/forms/Hauptumfeld.h"

using namespace TZ_Variablen;

namespace {

// From an empty folder to the bookings and back into the program: the way of a beekeeper's first
// day, on the real main form. Today is the 15th of June 2024.
class Kurs : public Hauptumfeld {
 protected:
  // A window system would do it: what was opened last has the keyboard.
  static bool vorn(QWidget* fenster) {
    fenster->activateWindow();
    return QTest::qWaitFor([fenster] { return QApplication::activeWindow() == fenster; });
  }
  // A key for whatever has the keyboard.
  static void taste(Qt::Key key, Qt::KeyboardModifiers dazu = Qt::NoModifier) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClick(QApplication::focusWidget(), key, dazu);
  }
  static void schreibe(const QString& text) {
    ASSERT_NE(QApplication::focusWidget(), nullptr);
    QTest::keyClicks(QApplication::focusWidget(), text);
  }
  // Name, race and site of the colony whose number stands marked in the first input.
  static void volkdaten(const QString& name) {
    for (const QString& text : {name, QString("Carnica"), QString("Hausgarten")}) {
      taste(Qt::Key_Tab);
      schreibe(text);
    }
    taste(Qt::Key_Tab);
  }
  // The button goes down for a moment before it acts.
  static void nächstes(QWidget* neu, const QString& nummer) {
    taste(Qt::Key_N, Qt::AltModifier);
    const auto* feld = neu->findChild<QLineEdit*>("sevt_0");
    ASSERT_TRUE(QTest::qWaitFor([&] { return feld->text() == nummer && feld->hasFocus(); }));
  }
  static void dreiVölker(QWidget* neu) {
    ASSERT_TRUE(vorn(neu));
    schreibe("1");
    volkdaten("Anna");
    nächstes(neu, "2");
    volkdaten("Berta");
    nächstes(neu, "3");
    volkdaten("Carla");
    taste(Qt::Key_Return);
  }

  void völkerEingeben() {
    ASSERT_TRUE(laden());
    // The work plan has made appointments for the new colonies; some are due soon.
    Formbesuch termine("TV_Starttermine");
    Formbesuch schritte("TH_Hilfe_Wieanfangen", [](QWidget* hilfe) {
      ASSERT_TRUE(vorn(hilfe));
      Formbesuch volk("TV_Neues_Volk", dreiVölker);
      taste(Qt::Key_Return);
      EXPECT_TRUE(volk.war());
      QTest::keyClick(hilfe, Qt::Key_Escape);
    });
    zeigen();
    EXPECT_TRUE(schritte.war());
    EXPECT_TRUE(termine.war());
    ASSERT_TRUE(vorn(form.get()));
  }

  // Through the menu, by keyboard; acts on the booking form and leaves it with Esc.
  void buche(Qt::Key imMenü, const std::function<void(QWidget*)>& eintragen) {
    Formbesuch besuch("TE_Eingabe", [&](QWidget* eingabe) {
      ASSERT_TRUE(vorn(eingabe));
      eintragen(eingabe);
      QTest::keyClick(eingabe, Qt::Key_Escape);
      EXPECT_FALSE(eingabe->isVisible());
    });
    QTest::keyClick(form.get(), Qt::Key_E, Qt::AltModifier);
    auto* menü = finde<QMenu>("XE_Eingabe");
    ASSERT_TRUE(menü->isVisible());
    QTest::keyClick(menü, imMenü);
    EXPECT_TRUE(besuch.war());
    ASSERT_TRUE(vorn(form.get()));
    QApplication::processEvents();
  }
  // A menu opened by its letter stands on its first entry.
  void durchsicht() {
    datali()->setFocus();
    taste(Qt::Key_Home);
    buche(Qt::Key_Return, [](QWidget* eingabe) {
      EXPECT_EQ(BuchungsArt, 0);
      tippe(eingabe, "Volksstärke", "8,5");
      tippe(eingabe, "Honigwaben", "3");
      tippe(eingabe, "Brutwaben", "6");
      tippe(eingabe, "Futterwaben", "1");
      tippe(eingabe, "Bemerkung", "Weisel gesehen");
      taste(Qt::Key_Tab);
      taste(Qt::Key_Return);
      EXPECT_EQ(eingabe->findChild<Grid*>("li")->zeilen(), 1);
    });
  }
  // Ten kilograms of three colonies, divided, and into the store.
  void ernte() {
    EinstellungenZahl[Zahlslots.sammelbuchungTeilen] = 1;
    EinstellungenZahl[Zahlslots.ernteInsHoniglager] = 1;
    datali()->setFocus();
    taste(Qt::Key_A, Qt::ControlModifier);
    ASSERT_EQ(form->markierteZeilen().size(), 3);
    probe.frage(
        "Es sind im Moment 3 Völker markiert. Soll die Buchung wirklich bei allen markierten "
        "Völkern eingetragen werden?",
        true);
    buche(Qt::Key_H, [](QWidget* eingabe) {
      EXPECT_EQ(BuchungsArt, 1);
      tippe(eingabe, "Menge (kg)", "10");
      tippe(eingabe, "Honigsorte", "Raps");
      tippe(eingabe, "Charge", "24-1");
      taste(Qt::Key_Return);
    });
    EXPECT_EQ(probe.fehler().toStdString(), "");
  }

  void zeigeVolk(int zeile) {
    form->setAktuelleZeile(zeile);
    datali()->setFocus();
    taste(Qt::Key_Return);
  }
  void enthält(const QString& zeile) const {
    EXPECT_TRUE(panel().split(u'\n').contains(zeile)) << qPrintable(zeile) << "\nfehlt in\n"
                                                      << qPrintable(panel());
  }
  static std::string feld(const QString& anweisung) {
    const Daten daten = DB.Lesen(anweisung);
    return daten->zeilen() == 1 ? daten->anzeige(0, 0).toStdString()
                                : std::to_string(daten->zeilen()) + " Zeilen";
  }

  void prüfeDatenbank() {
    const Daten ernten = DB.Lesen("select Menge_kg, Volk_ID from Honigernte order by Volk_ID");
    ASSERT_EQ(ernten->zeilen(), 3);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(ernten->anzeige(i, 0).toStdString(), "3,33");
    EXPECT_EQ(feld("select Zugang from Honiglager"), "10");
    EXPECT_EQ(feld("select Produkt from Honiglager"), "Raps");
    EXPECT_EQ(feld("select Charge from Honiglager"), "24-1");
    EXPECT_EQ(feld("select Waben from Stockkarte"), "10");
  }
  void prüfePanelDesErsten() {
    zeigeVolk(0);
    EXPECT_TRUE(
        panel().startsWith("VOLKDATEN\nVolknummer:        1\nVolkname:          Anna\n"
                           "Volkstärke:        8,5\nMagazine:          1\n"))
        << qPrintable(panel());
    for (const char* zeile :
         {"Wabenanzahl:       10", "Summe Wände/Waben: 10", "Honigwaben:        3",
          "Brutwaben:         6", "Futterwaben:       1", "L_Honigernte:      15.06.2024",
          "L_Honigmenge kg:   3,33", "Honigmenge Ges.:   3,33", "Standort:          Hausgarten",
          "Bienenrasse:       Carnica"})
      enthält(QString::fromUtf8(zeile));
    enthält(
        "15.06.2024  8,5  0,0  0,0  0,0  0,0  0,0  0,0  0,0  0,0   1  10       3   6   0   0   0   "
        "0      10    0,00   0,00   0,00  Weisel gesehen");
    enthält(Ernte);
  }
  void prüfePanelDesDritten() {
    zeigeVolk(2);
    EXPECT_TRUE(panel().startsWith("VOLKDATEN\nVolknummer:        3\nVolkname:          Carla\n"))
        << qPrintable(panel());
    EXPECT_FALSE(panel().contains("Weisel gesehen"));
    enthält(Ernte);
  }

  const QString Ernte =
      "15.06.2024      3,33  Raps                              0,00    0,00      0,00  "
      "24-1            ";
};

}  // namespace

TEST_F(Kurs, VomLeerenOrdnerÜberDreiVölkerDurchsichtUndErnteBisZumNächstenStart) {
  völkerEingeben();
  EXPECT_EQ(nummern(), QStringList({"1", "2", "3"}));
  EXPECT_EQ(filtertexte()[0], QStringLiteral("Bestand (3 Völker)"));
  durchsicht();
  ernte();
  prüfeDatenbank();
  prüfePanelDesErsten();
  const QString panelVorher = panel();
  prüfePanelDesDritten();

  schließen();
  zurücksetzen();
  Formbesuch termine("TV_Starttermine");
  starten();
  EXPECT_TRUE(termine.war());
  ASSERT_TRUE(vorn(form.get()));
  EXPECT_EQ(nummern(), QStringList({"1", "2", "3"}));
  EXPECT_EQ(EinstellungenZahl[Zahlslots.sammelbuchungTeilen], 1);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.ernteInsHoniglager], 1);
  prüfeDatenbank();
  prüfePanelDesErsten();
  EXPECT_EQ(panel().toStdString(), panelVorher.toStdString());
  prüfePanelDesDritten();
}
