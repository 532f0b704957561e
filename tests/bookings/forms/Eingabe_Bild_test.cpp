// How the form stands on the screen: nothing clipped, no holes, for every type and font size. With
// TOVA_BILDER set to a folder, pictures are left there.
#include <QLabel>
#include <QLayout>
#include <QRadioButton>

#include "Eingabeprobe.h"
#include "gemeinsam/Bildschirm.h"

namespace {

using namespace TZ_Variablen;

class EingabeBild : public Eingabeprobe, public testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    Eingabeprobe::SetUp();
    fülle();
  }
  void fülle();
  void schreibeDaten();
  // Texts and buttons have at least the room that they need.
  void prüfeNichtsAbgeschnitten(const QString& fall);
  void bild(const QString& name) {
    bildAblegen(*form, QString("eingabe_%1_%2").arg(name).arg(GetParam()));
  }

  const Schriftgröße m_schrift{GetParam()};
};

void EingabeBild::fülle() {
  DB.Sammelschreiben([this] { schreibeDaten(); });
}

void EingabeBild::schreibeDaten() {
  const QStringList namen{"Königin Ännchen", "Großmutters Volk",     "Röschen",
                          "Übersee-Ableger", "Schwarm am Kirchturm", "Zuchtvolk Süd 7"};
  const QStringList orte{"Bienenhaus am Mühlbach", "Heidestand Lüneburg-Süd", "Hof"};
  for (int nr = 4; nr < 60; ++nr)
    volk(QString("%1-%2").arg(nr / 10).arg(nr), namen[nr % 6], orte[nr % 3]);
  for (int i = 0; i < 12; ++i) {
    const QString tag = QDate(2026, 1, 3).addDays(13 * i).toString(Qt::ISODate);
    zeile("Stockkarte", 1, tag,
          {{"Volkstärke", 3.5},
           {"Brutstand", 4},
           {"Sanftmut", 4.5},
           {"Magazine", 3},
           {"Waben", 24},
           {"Honigwaben", 8},
           {"Brutwaben", 9},
           {"Pollenwaben", 2},
           {"Drohnenwaben", 1},
           {"Leerwaben", 2},
           {"Mittelwände", 4},
           {"Futterwaben", 2},
           {"HW_verdeckelt", 80},
           {"BW_offen", 35},
           {"BW_verdeckelt", 55},
           {"Futter_flüssig_l", 12.5},
           {"Futter_Teig_kg", 2.25},
           {"Eigener_Futtervorrat", 18.75},
           {"Bemerkung", "Weisel gesehen, ruhig am Stein"}});
    zeile("Honigernte", 1, tag,
          {{"Menge_kg", 23.75},
           {"Honigsorte", "Frühtracht mit Löwen"},
           {"Qualität", "Auslese I"},
           {"Zeit_h", 2.5},
           {"Kosten", 45},
           {"Honig_Wert", 261.25},
           {"Charge", "L2026-05-A-0007"},
           {"Bemerkung", "Wassergehalt 16,8 % gemessen."}});
    zeile("Wachsernte", 1, tag,
          {{"Menge_kg", 1.2},
           {"Qualität", "Entdecklg."},
           {"Zeit_h", 1},
           {"Kosten", 18},
           {"Wachs_Wert", 14.4},
           {"Bemerkung", "Entdecklungswachs, hellgelb"}});
    zeile("Pollenernte", 1, tag,
          {{"Menge_g", 850},
           {"Qualität", "getrocknet"},
           {"Zeit_h", 0.5},
           {"Kosten", 9},
           {"Pollen_Wert", 42.5},
           {"Bemerkung", "überwiegend Weide und Ahorn"}});
    zeile("Sonstigeernte", 1, tag,
          {{"Ernteart", "Propolis vom Gitter"},
           {"Menge_g", 120},
           {"Qualität", "rein"},
           {"Zeit_h", 0.75},
           {"Kosten", 13.5},
           {"Wert", 36},
           {"Bemerkung", "für Tinktur"}});
    zeile("Arbeiten", 1, tag,
          {{"Arbeitsart", "Drohnenrahmen ausschneiden"},
           {"Zeit_h", 0.25},
           {"Kosten", 4.5},
           {"Bemerkung", "zweiter Schnitt in diesem Jahr"}});
    zeile("Wanderung", 1, tag,
          {{"Standort", "Heidestand Lüneburg-Süd, hinter dem Schafstall am Wacholderweg"},
           {"Zeit_h", 3.5},
           {"Kosten", 63},
           {"Standortprämie", 120},
           {"Prämie_erhalten", "N"},
           {"Bemerkung", "Anfahrt über Müden/Örtze"}});
    zeile("Gewichtsmessung", 1, tag,
          {{"Gewicht_kg", 42.375}, {"Zeit_h", 0.1}, {"Kosten", 1.8}, {"Bemerkung", "Stockwaage"}});
    zeile("Behandlung", 1, tag,
          {{"Behandlungsart", "Sommerbehandlung gegen Varroa"},
           {"Mittel", "Ameisensäure 60 % ad us. vet."},
           {"Menge_g", 180},
           {"Zulassungsnr", "6170.00.00"},
           {"Wartezeit", 14},
           {"Zeit_h", 0.5},
           {"Kosten", 9},
           {"Bemerkung", "Nassenheider, 22 °C"},
           {"Anz_Varroen", 137}});
    zeile("Königinwechsel", 1, tag,
          {{"Herkunft", "Belegstelle Norderney, Züchter"},
           {"Zuchtindex", "112/108"},
           {"Nummer", "DE-7-84-112-2025"},
           {"Farbe", "weiß"},
           {"Zeit_h", 0.5},
           {"Kosten", 45},
           {"Bemerkung", "begattet, im Ausfresskäfig"}});
    zeile("Notizen", 1, tag,
          {{"Notiz",
            "Flugloch verengt, Räuberei vom Nachbarstand beobachtet.\r\nIn drei Tagen "
            "wieder nachsehen; Fütterung nur am späten Abend."}});
  }
}

void EingabeBild::prüfeNichtsAbgeschnitten(const QString& fall) {
  for (auto* schild : form->findChildren<QLabel*>()) {
    if (!schild->isVisible() || schild->objectName() == "bezbewegungsdaten") continue;
    EXPECT_GE(schild->width(), schild->sizeHint().width()) << qPrintable(fall + schild->text());
    EXPECT_GE(schild->height(), schild->sizeHint().height()) << qPrintable(fall + schild->text());
  }
  for (auto* knopf : form->findChildren<QAbstractButton*>()) {
    if (!knopf->isVisible() || knopf->text().isEmpty() || knopf->parent()->inherits("QLineEdit"))
      continue;
    EXPECT_GE(knopf->width(), knopf->sizeHint().width()) << qPrintable(fall + knopf->text());
    EXPECT_GE(knopf->height(), knopf->sizeHint().height()) << qPrintable(fall + knopf->text());
  }
  for (int slot = 0; slot < 28; ++slot) {
    if (slot == 15 || !feld(slot)->isVisible()) continue;
    EXPECT_GE(feld(slot)->height(), feld(slot)->sizeHint().height()) << qPrintable(fall) << slot;
    EXPECT_GE(feld(slot)->width(), feld(slot)->minimumSizeHint().width())
        << qPrintable(fall) << slot;
  }
}

TEST_P(EingabeBild, NichtsIstAbgeschnittenUndEsPasstAufEinenKleinenSchirm) {
  öffne(0);
  for (int art = 0; art < 11; ++art) {
    const QString fall = "Art " + QString::number(art) + ": ";
    klicke("opti_" + QString::number(art));
    tippe("Datum", "15.06.2026");
    form->resize(1366, 700);  // less the window's title and the task bar
    QTest::qWait(1);
    EXPECT_LE(form->width(), 1366) << qPrintable(fall);
    EXPECT_LE(form->height(), 700) << qPrintable(fall);
    prüfeNichtsAbgeschnitten(fall);
    EXPECT_GE(li()->viewport()->height(), 3 * li()->rowHeight(0)) << qPrintable(fall);
    if (art == 0) tippe("Brutwaben", "11");
    QTest::qWait(1);
    EXPECT_TRUE(li()->viewport()->rect().contains(li()->visualRect(li()->currentIndex()).center()))
        << "the newest booking is in view";
    bild(QString::number(art).rightJustified(2, '0'));
    form->resize(form->minimumSizeHint());
    QTest::qWait(1);
    prüfeNichtsAbgeschnitten(fall + "klein ");
  }
}

// Each slot stands right below the one before it, beside it, or at the top of the next column.
TEST_P(EingabeBild, VerborgenePlätzeHinterlassenKeineLücken) {
  öffne(0);
  for (int art = 0; art < 10; ++art) {
    klicke("opti_" + QString::number(art));
    form->resize(1366, 700);
    QTest::qWait(1);
    const int oben = feld(1)->y();
    const int schritt = feld(2)->y() - oben;
    EXPECT_LT(feld("Datum")->y(), oben);
    EXPECT_LE(schritt, 2 * feld(1)->height());
    int vorher = oben;
    for (const int slot : sichtbar()) {
      if (art == 0 && slot == 24) vorher += schritt;  // its caption stands above it
      const int hier = feld(slot)->y();
      EXPECT_TRUE(hier == oben || hier == vorher ||
                  std::abs(hier - vorher - schritt) <= schritt / 3)
          << "Art " << art << " Platz " << slot << ": " << hier << " nach " << vorher;
      vorher = hier;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Schriftgrößen, EingabeBild, testing::Values(100, 150));

class EingabeBedienung : public Eingabeprobe {};

TEST_F(EingabeBedienung, DieTabulatortasteGehtVomDatumDurchDiePlätzeZumNeuKnopf) {
  öffne(0);
  QStringList folge;
  for (int i = 0; i < 28; ++i) {
    folge.append(QApplication::focusWidget()->objectName());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  QStringList erwartet;
  for (int slot = 0; slot < 28; ++slot)
    if (slot != 15) erwartet.append("sevt_" + QString::number(slot));
  erwartet.append("neu_0");
  EXPECT_EQ(folge, erwartet);
}

TEST_F(EingabeBedienung, VonDerNotizFührtDieTabulatortasteZumNeuKnopf) {
  öffne(10);
  taste(feld("Datum"), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), notiz());
  taste(notiz(), Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget()->objectName(), "neu_0");
}

TEST_F(EingabeBedienung, KeineMerktasteIstDoppeltVergeben) {
  öffne(0);
  QStringList tasten;
  const auto sammle = [&](const QString& text) {
    const qsizetype ort = text.indexOf('&');
    if (ort >= 0 && ort + 1 < text.size()) tasten.append(text.mid(ort + 1, 1).toUpper());
  };
  for (auto* knopf : form->findChildren<QAbstractButton*>()) sammle(knopf->text());
  for (auto* schild : form->findChildren<QLabel*>())
    if (schild->textFormat() != Qt::PlainText) sammle(schild->text());
  EXPECT_GE(tasten.size(), 6);
  EXPECT_EQ(tasten.removeDuplicates(), 0) << qPrintable(tasten.join(' '));
}

TEST_F(EingabeBedienung, DieBeschriftungenDerKnöpfeStehenFest) {
  öffne(0);
  const QList<std::pair<QString, QString>> erwartet{{"neu_0", "&Neu"},
                                                    {"neu_1", "&Ändern"},
                                                    {"standard_0", "Standard sichern"},
                                                    {"standard_1", "Standard einlesen"},
                                                    {"anzeige_0", "Alles"},
                                                    {"anzeige_1", "Aktuelles Jahr"},
                                                    {"anzeige_2", "Akt. und letztes Jahr"},
                                                    {"cmdschließen", "&Schließen"}};
  for (const auto& [name, beschriftung] : erwartet)
    EXPECT_EQ(kind<QAbstractButton>(name)->text(), beschriftung);
}

TEST_F(EingabeBedienung, JedesSichtbareEingabefeldHatEinenVorlesenamen) {
  öffne(0);
  for (int art = 0; art < 10; ++art) {
    klicke("opti_" + QString::number(art));
    for (const int slot : sichtbar())
      EXPECT_FALSE(feld(slot)->accessibleName().isEmpty()) << art << " " << slot;
  }
  for (const char* name : {"volkli", "li", "kom", "sevt_0"})
    EXPECT_FALSE(kind<QWidget>(name)->accessibleName().isEmpty()) << name;
}

TEST_F(EingabeBedienung, DieHilfeKenntDasThemaDerForm) {
  QString thema;
  Formular::setHilfe([&](QWidget*, const QString& t) { thema = t; });
  öffne(0);
  klicke("comhilfe");
  EXPECT_EQ(thema, "TE_Eingabe");
  thema.clear();
  taste(feld("Datum"), Qt::Key_F1);
  EXPECT_EQ(thema, "TE_Eingabe");
  Formular::setHilfe({});
}

}  // namespace
