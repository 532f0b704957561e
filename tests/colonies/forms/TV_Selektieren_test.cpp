#include "colonies/forms/TV_Selektieren.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>

#include "colonies/forms/Selektionsprobe.h"
#include "gemeinsam/Bildschirm.h"

namespace {

using TZ_Variablen::EinstellungenZahl;

class TVSelektieren : public Selektionsprobe {
 protected:
  std::string zeile() { return kind<QLabel>("anzahl")->text().toStdString(); }
  bool kon(int index) { return kind<QCheckBox>(QString("kon_%1").arg(index))->isChecked(); }
};

TEST_F(TVSelektieren, JedesFeldHatNamenUndBeschriftung) {
  öffne();
  EXPECT_EQ(form->objectName(), "TV_Selektieren");
  EXPECT_EQ(kind<QCheckBox>("kon_0")->text(), "Alte Selektion vor neuer Selektion löschen");
  EXPECT_EQ(kind<QCheckBox>("kon_1")->text(),
            "Die Selektion bezieht sich nur auf die aktuell im Bestand befindlichen Völker");
  for (int i = 0; i < 9; ++i)
    EXPECT_EQ(kind<QPushButton>(QString("entselekt_%1").arg(i))->text(),
              Selektion::regeln().at(i).beschriftung);
  for (int i = 0; i < 7; ++i) EXPECT_FALSE(feld(i)->accessibleName().isEmpty()) << i;
}

TEST_F(TVSelektieren, AuswahllistenZeigenJedenWertEinmalOhneDenLeeren) {
  db().Execute("update Bienenvolk set Standort = '' where Volknr = '4'");
  öffne();
  EXPECT_EQ(feld("Standort")->liste(), QStringList({"Heide", "Hof"}));
  EXPECT_EQ(feld("Beuteart")->liste(), QStringList());
  EXPECT_EQ(feld("Bezug")->beschreibung().auswahl, Selektion::zahlfelder());
}

TEST_F(TVSelektieren, WasNichtGeladenWerdenKannWirdNichtGezeigtUndHältDieDatenbankNicht) {
  db().Execute("drop table Bienenvolk");
  form = std::make_unique<TV_Selektieren>();
  EXPECT_THROW(form->zeigen(), Datenbankfehler);
  EXPECT_FALSE(form->isVisible());
  boxen.hinweisMit("Die Datenbank ist geschlossen.");
  kind<QPushButton>("entselekt_0")->click();
}

TEST_F(TVSelektieren, SelektiertNachStandortUndLiestDieListeNeu) {
  öffne();
  tippe("Standort", "Hof");
  const int vorher = liste->gelesen;
  regel(2);
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(selektiert(), "1 2 5");
  EXPECT_EQ(liste->gelesen, vorher + 1);
  EXPECT_EQ(liste->zelle(0, "Selektiert"), "X");
  EXPECT_EQ(TZ_Variablen::ListeNeuLesen, 0);
  EXPECT_EQ(zeile(), "Zur Zeit sind 3 Völker selektiert, davon 1 nicht mehr im Bestand.");
}

TEST_F(TVSelektieren, RegelnLassenSichNacheinanderVerbinden) {
  öffne();
  tippe("Standort", "Heide");
  regel(2);
  EXPECT_EQ(selektiert(), "3 4");
  db().Execute("update Bienenvolk set Magazine = 2 where Volknr = '1'");
  tippe("Bezug", "MM");
  tippe("Zahl, die der Bezug hat", "2");
  regel(8);
  EXPECT_EQ(selektiert(), "1 3 4");
  regel(1);
  EXPECT_EQ(selektiert(), "");
  EXPECT_EQ(zeile(), "Zur Zeit ist kein Volk selektiert.");
  regel(0);
  EXPECT_EQ(selektiert(), "1 2 3 4 5");
}

TEST_F(TVSelektieren, AktuellImBestandSelektiertOhneEingabe) {
  öffne();
  regel(7);
  EXPECT_EQ(selektiert(), "1 2 3 4");
}

TEST_F(TVSelektieren, AlteSelektionWirdMitHakenGelöscht) {
  merke({"1"});
  öffne();
  klicke("kon_0");
  tippe("Standort", "Heide");
  regel(2);
  EXPECT_EQ(selektiert(), "3 4");
}

TEST_F(TVSelektieren, NurBestandMitHaken) {
  öffne();
  klicke("kon_1");
  regel(0);
  EXPECT_EQ(selektiert(), "1 2 3 4");
}

TEST_F(TVSelektieren, OhneAuswahlSagtDieFormWasFehltUndSchreibtNichts) {
  merke({"1"});
  öffne();
  klicke("kon_0");
  const int vorher = liste->gelesen;
  boxen.hinweis(
      "Der Selektionswunsch kann nicht ausgeführt werden, weil die Rasse nicht "
      "ausgewählt ist.");
  regel(4);
  EXPECT_EQ(selektiert(), "1");
  EXPECT_EQ(liste->gelesen, vorher);
  EXPECT_TRUE(feld("Rasse")->hasFocus());
}

TEST_F(TVSelektieren, JedeRegelNimmtDieEingabeNebenIhr) {
  const QStringList felder{"Standort", "Beuteart", "Bienenrasse", "Volk_Herkunft", "Abnehmer"};
  for (int i = 0; i < 5; ++i)
    db().Execute("update Bienenvolk set " + felder[i] + " = 'Probe' where Volknr = ?",
                 {QString::number(i + 1)});
  öffne();
  klicke("kon_0");
  for (int i = 0; i < 5; ++i) {
    tippe(i, "Probe");
    regel(i + 2);
    EXPECT_EQ(selektiert(), std::to_string(i + 1));
    const int mitte =
        kind<QPushButton>(QString("entselekt_%1").arg(i + 2))->geometry().center().y();
    EXPECT_LE(std::abs(feld(i)->geometry().center().y() - mitte), 3) << i;
  }
}

TEST_F(TVSelektieren, VölkerWoMitKommazahl) {
  db().Execute("update Bienenvolk set Volkstärke = 3.3 where Volknr = '2'");
  öffne();
  tippe("Bezug", "Vo");
  EXPECT_EQ(feld("Bezug")->inhalt(), "Volkstärke");
  tippe("Zahl, die der Bezug hat", "3,3");
  regel(8);
  EXPECT_EQ(selektiert(), "2");
}

TEST_F(TVSelektieren, EingabetasteImFeldLöstSeineRegelAus) {
  öffne();
  tippe("Standort", "Heide");
  EXPECT_TRUE(kind<QPushButton>("entselekt_2")->isDefault());
  QTest::keyClick(feld("Standort"), Qt::Key_Return);
  EXPECT_EQ(selektiert(), "3 4");
  EXPECT_TRUE(form->isVisible());
  feld("Zahl, die der Bezug hat")->setFocus();
  EXPECT_TRUE(kind<QPushButton>("entselekt_8")->isDefault());
  kind("kon_0")->setFocus();
  EXPECT_TRUE(kind<QPushButton>("schliessen")->isDefault());
}

TEST_F(TVSelektieren, ReihenfolgeDerTabtaste) {
  öffne();
  QWidget* w = kind("kon_0");
  w->setFocus();
  QStringList folge;
  for (int i = 0; i < 20; ++i) {
    folge << QApplication::focusWidget()->objectName();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  }
  EXPECT_EQ(folge.join(' ').toStdString(),
            "kon_0 kon_1 entselekt_0 entselekt_1 entselekt_7 entselekt_2 sevt_0 entselekt_3 sevt_1 "
            "entselekt_4 sevt_2 entselekt_5 sevt_3 entselekt_6 sevt_4 entselekt_8 sevt_5 sevt_6 "
            "comhilfe schliessen");
}

TEST_F(TVSelektieren, HakenStehenInSlot53Und52) {
  EinstellungenZahl[Zahlslots.selektionAlteLöschen] = 1;
  EinstellungenZahl[Zahlslots.selektionNurBestand] = 0;
  öffne();
  EXPECT_TRUE(kon(0));
  EXPECT_FALSE(kon(1));
  klicke("kon_0");
  klicke("kon_1");
  EXPECT_EQ(EinstellungenZahl[Zahlslots.selektionAlteLöschen], 1) << "erst beim Schließen";
  klicke("schliessen");
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(EinstellungenZahl[Zahlslots.selektionAlteLöschen], 0);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.selektionNurBestand], 1);
}

TEST_F(TVSelektieren, EscUndFensterschließenMerkenDieHaken) {
  öffne();
  klicke("kon_0");
  QTest::keyClick(form.get(), Qt::Key_Escape);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(EinstellungenZahl[Zahlslots.selektionAlteLöschen], 1);
  öffne();
  EXPECT_TRUE(kon(0));
  klicke("kon_1");
  form->close();
  EXPECT_EQ(EinstellungenZahl[Zahlslots.selektionNurBestand], 1);
}

TEST_F(TVSelektieren, BeimNächstenÖffnenSindDieEingabenLeer) {
  öffne();
  tippe("Standort", "Hof");
  tippe("Bezug", "MM");
  tippe("Zahl, die der Bezug hat", "2");
  form->close();
  form->laden();
  for (int i = 0; i < 7; ++i) EXPECT_EQ(feld(i)->inhalt(), "") << i;
}

TEST_F(TVSelektieren, HilfeMitKnopfUndF1) {
  QStringList themen;
  Formular::setHilfe([&](QWidget*, const QString& thema) { themen << thema; });
  const auto zurück = qScopeGuard([] { Formular::setHilfe({}); });
  öffne();
  klicke("comhilfe");
  QTest::keyClick(feld("Standort"), Qt::Key_F1);
  EXPECT_EQ(themen, QStringList({"TV_Selektieren", "TV_Selektieren"}));
}

TEST_F(TVSelektieren, EinDatenbankfehlerLässtDieFormOffen) {
  öffne();
  db().Execute("drop table Bienenvolk");
  boxen.hinweisMit("Bienenvolk");
  regel(0);
  EXPECT_TRUE(form->isVisible());
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

class SelektierenBild : public TVSelektieren, public ::testing::WithParamInterface<int> {
 protected:
  // Those of the form, not the ones within its inputs.
  QList<QAbstractButton*> knöpfe() const {
    QList<QAbstractButton*> alle;
    for (auto* knopf : form->findChildren<QAbstractButton*>())
      if (!knopf->parent()->inherits("QLineEdit")) alle << knopf;
    return alle;
  }

 private:
  const Schriftgröße m_schrift{GetParam()};
};

TEST_P(SelektierenBild, NichtsIstAbgeschnittenUndEsPasstAufEinenKleinenSchirm) {
  db().Execute(
      "update Bienenvolk set Standort = 'Waldrand hinter Hohenlinden, am Hang' where "
      "Volknr = '1'");
  öffne();
  tippe("Standort", "Waldrand hinter Hohenlinden, am Hang");
  tippe("Bezug", "WWW");
  tippe("Zahl, die der Bezug hat", "3,25");
  regel(0);
  EXPECT_LE(form->width(), 1366);
  EXPECT_LE(form->height(), 700);  // less the window's title and the task bar
  for (auto* knopf : knöpfe()) {
    EXPECT_GE(knopf->width(), knopf->sizeHint().width()) << qPrintable(knopf->text());
    EXPECT_GE(knopf->height(), knopf->sizeHint().height()) << qPrintable(knopf->text());
  }
  auto* anzahl = kind<QLabel>("anzahl");
  EXPECT_GE(anzahl->width(), anzahl->sizeHint().width());
  EXPECT_GE(anzahl->height(), anzahl->sizeHint().height());
  for (int i = 0; i < 7; ++i) EXPECT_GE(feld(i)->height(), feld(i)->sizeHint().height()) << i;
  EXPECT_GE(feld("Bezug")->width(),
            feld("Bezug")->fontMetrics().horizontalAdvance("Winterfestigkeit") + 30);
  bildAblegen(*form, QString("sel_%1").arg(GetParam()));
  form->resize(form->minimumSizeHint());
  QTest::qWait(1);
  for (auto* knopf : knöpfe())
    EXPECT_GE(knopf->width(), knopf->minimumSizeHint().width()) << qPrintable(knopf->text());
  bildAblegen(*form, QString("sel_%1_klein").arg(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Schriftgrößen, SelektierenBild, ::testing::Values(100, 150));

}  // namespace
