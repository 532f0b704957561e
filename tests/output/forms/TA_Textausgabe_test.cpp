// The text output driven by key and mouse. With TOVA_BILDER set to a folder, pictures are left
// there.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFontMetricsF>
#include <QLabel>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTemporaryDir>
#include <QTest>
#include <QWheelEvent>
#include <memory>

#include "gemeinsam/Bildschirm.h"
#include "gemeinsam/Druckdialog.h"
#include "gemeinsam/Formularprobe.h"
#include "gemeinsam/Pdf.h"
#include "gemeinsam/Programmordner.h"
#include "output/forms/TA_Textausgabe.h"
#include "platform/files/Textdatei.h"

using namespace TZ_Variablen;

namespace {

// A program folder, and a current folder that is another.
class Druckordner : public testing::Test {
 protected:
  void SetUp() override {
    m_vorher = QDir::currentPath();
    ASSERT_TRUE(QDir::setCurrent(m_aktuell.path()));
    AusgabeDatei = AppPfad + "LISTE.TXT";
    EinstellungenZahl[Zahlslots.textGröße] = 10;
  }
  void TearDown() override {
    Formular::setHilfe({});
    QDir::setCurrent(m_vorher);
  }

  Programmordner m_ordner{"15.06.2024"};
  QTemporaryDir m_aktuell;
  QString m_vorher;
};

class Listenausgabe : public Formularprobe<TA_Textausgabe, Druckordner> {
 protected:
  void TearDown() override {
    schriftZurücksetzen();
    Formularprobe::TearDown();
  }

  void liste(const QStringList& zeilen) { Textausgabe::listeSchreiben(zeilen); }
  using Formularprobe::öffne;
  void öffne(const QStringList& zeilen) {
    liste(zeilen);
    öffne();
  }

  QString text() { return kind<QPlainTextEdit>("t")->toPlainText(); }
  QFont schrift() { return kind<QPlainTextEdit>("t")->font(); }
  QString größe() { return kind<QComboBox>("größe")->currentText(); }
  QString rand() { return kind<QLineEdit>("tz")->text(); }

  // Another font than one that begins with "Courier".
  bool wähleAndereSchrift() {
    auto* kom = kind<QComboBox>("kom");
    for (int i = 0; i < kom->count(); ++i)
      if (!kom->itemText(i).startsWith("Courier")) {
        kom->setCurrentIndex(i);
        return true;
      }
    return false;
  }
  // The font's name outlives the form.
  void schriftZurücksetzen() {
    if (!form) return;
    if (!form->isVisible()) form->show();
    auto* kom = kind<QComboBox>("kom");
    for (int i = 0; i < kom->count(); ++i)
      if (kom->itemText(i).startsWith("Courier")) kom->setCurrentIndex(i);
    form->close();
  }
  void bild(const QString& name) { bildAblegen(*form, "text_" + name); }
  QString pdf() const { return m_ordner.filePath("druck.pdf"); }
  QString druckauf() const { return m_aktuell.filePath("DRUCKAUF.TXT"); }
};

// Loading

TEST_F(Listenausgabe, ZeigtDieDateiUndNenntSieImTitel) {
  öffne({"Völker", "  1 Königin Anna", ""});
  EXPECT_EQ(form->windowTitle(), "Listen-Ausgabe " + AusgabeDatei);
  EXPECT_EQ(text(), QString("Völker\n  1 Königin Anna\n\n"));
}

TEST_F(Listenausgabe, DerTextLässtSichNichtÄndern) {
  öffne({"fest"});
  auto* t = kind<QPlainTextEdit>("t");
  t->setFocus();
  QTest::keyClicks(t, "x");
  QTest::keyClick(t, Qt::Key_Delete);
  EXPECT_EQ(text(), QString("fest\n"));
}

TEST_F(Listenausgabe, LeertDenFormModus) {
  FormModus = "VOLKDATEN";
  öffne({"x"});
  EXPECT_EQ(FormModus, QString());
}

TEST_F(Listenausgabe, EineFehlendeDateiWirdGemeldetUndDasFeldBleibtLeer) {
  öffne({"alt"});
  form->close();
  QFile::remove(AusgabeDatei);
  boxen.hinweis("Die Datei " + AusgabeDatei + " existiert nicht");
  form->laden();
  EXPECT_EQ(text(), QString());
}

TEST_F(Listenausgabe, EinTextVonGenau32000ZeichenOhneWarnung) {
  öffne(QStringList(320, QString(98, 'a')));
  EXPECT_EQ(text().size(), 320 * 99);  // the field counts a line end as one
}

TEST_F(Listenausgabe, EineZeileMehrWirdGewarnt) {
  liste(QStringList(320, QString(98, 'a')) + QStringList{"mehr", "zu viel"});
  boxen.hinweis(Textausgabe::zuGroßText());
  öffne();
  EXPECT_TRUE(text().endsWith("\nmehr\n"));
}

TEST_F(Listenausgabe, EineSehrGroßeDateiIstGleichDa) {
  liste(QStringList(100000, QString(100, 'a')));
  boxen.hinweis(Textausgabe::zuGroßText());
  öffne();
  EXPECT_LT(text().size(), 33000);
}

TEST_F(Listenausgabe, DieÜblicheSchriftHatFesteBreiteUndBringtKeinenHinweis) {
  öffne({"x"});
  EXPECT_TRUE(kind<QComboBox>("kom")->currentText().startsWith("Courier New"));
  const QFontMetricsF masse(schrift());
  EXPECT_NEAR(masse.horizontalAdvance("iiii"), masse.horizontalAdvance("WWWW"), 0.1);
}

TEST_F(Listenausgabe, EineAndereSchriftBleibtBisZumProgrammendeUndBringtDenHinweis) {
  öffne({"x"});
  ASSERT_TRUE(wähleAndereSchrift());
  const QString name = kind<QComboBox>("kom")->currentText();
  EXPECT_EQ(schrift().family(), name);
  klicke("abbv");
  boxen.hinweis(Textausgabe::schriftHinweis());
  öffne();
  EXPECT_EQ(kind<QComboBox>("kom")->currentText(), name);
}

TEST_F(Listenausgabe, KeineSchriftStehtDoppeltInDerListe) {
  öffne({"x"});
  auto* kom = kind<QComboBox>("kom");
  QStringList namen;
  for (int i = 0; i < kom->count(); ++i) namen << kom->itemText(i);
  EXPECT_EQ(namen.removeDuplicates(), 0);
}

TEST_F(Listenausgabe, DasFensterPasstInDenBildschirm) {
  öffne({"x"});
  const QSize frei = form->screen()->availableGeometry().size();
  EXPECT_LE(form->width(), frei.width());
  EXPECT_LE(form->height(), frei.height());
}

// Settings

TEST_F(Listenausgabe, EinstellungenKommenAusIhrenPlätzen) {
  EinstellungenZahl[Zahlslots.textQuer] = 1;
  EinstellungenZahl[Zahlslots.textFett] = 1;
  EinstellungenZahl[Zahlslots.textKursiv] = 1;
  EinstellungenZahl[Zahlslots.textGröße] = 14;
  EinstellungenZahl[Zahlslots.textRand] = 25;
  öffne({"x"});
  EXPECT_TRUE(kind<QAbstractButton>("druckformat_1")->isChecked());
  EXPECT_TRUE(kind<QCheckBox>("kon_0")->isChecked());
  EXPECT_TRUE(kind<QCheckBox>("kon_1")->isChecked());
  EXPECT_EQ(größe(), QString("14"));
  EXPECT_EQ(rand(), QString("20"));
  EXPECT_TRUE(schrift().bold());
  EXPECT_TRUE(schrift().italic());
  EXPECT_EQ(schrift().pointSize(), 14);
}

TEST_F(Listenausgabe, BeimSchließenStehenDieEinstellungenInIhrenPlätzen) {
  öffne({"x"});
  klicke("druckformat_1");
  klicke("kon_0");
  klicke("kon_1");
  klicke("plus5_0");
  tippe("tz", "7");
  EXPECT_EQ(EinstellungenZahl[Zahlslots.textQuer], 0);  // not before closing
  klicke("abbv");
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(EinstellungenZahl[Zahlslots.textQuer], 1);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.textFett], 1);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.textKursiv], 1);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.textGröße], 15);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.textRand], 7);
}

TEST_F(Listenausgabe, AuchEscSichertDieEinstellungen) {
  öffne({"x"});
  klicke("kon_0");
  QTest::keyClick(form.get(), Qt::Key_Escape);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(EinstellungenZahl[Zahlslots.textFett], 1);
}

TEST_F(Listenausgabe, Größe4IstMitDenKnöpfenErreichbarUndBleibtNicht) {
  öffne({"x"});
  klicke("plus5_1");
  EXPECT_EQ(größe(), QString("5"));
  klicke("plus1_1");
  EXPECT_EQ(größe(), QString("4"));
  klicke("plus1_1");
  EXPECT_EQ(größe(), QString("4"));
  EXPECT_EQ(schrift().pointSize(), 4);
  klicke("abbv");
  EXPECT_EQ(EinstellungenZahl[Zahlslots.textGröße], 4);
  form->laden();
  EXPECT_EQ(größe(), QString("10"));
  EXPECT_EQ(kind<QComboBox>("größe")->itemText(0), QString("8"));
}

TEST_F(Listenausgabe, DieKnöpfeGehenHöchstensBis30) {
  öffne({"x"});
  for (int i = 0; i < 5; ++i) klicke("plus5_0");
  EXPECT_EQ(größe(), QString("30"));
  klicke("plus1_0");
  EXPECT_EQ(größe(), QString("30"));
}

TEST_F(Listenausgabe, EineGemerkteGrößeVon48WirdGenommen) {
  EinstellungenZahl[Zahlslots.textGröße] = 48;
  öffne({"x"});
  EXPECT_EQ(größe(), QString("48"));
  klicke("plus1_1");
  EXPECT_EQ(größe(), QString("30"));
}

TEST_F(Listenausgabe, SchriftÄnderungenZeigenSichSofort) {
  öffne({"x"});
  klicke("plus1_0");
  EXPECT_EQ(schrift().pointSize(), 11);
  klicke("kon_0");
  EXPECT_TRUE(schrift().bold());
  klicke("kon_1");
  EXPECT_TRUE(schrift().italic());
  kind<QComboBox>("größe")->setCurrentText("20");
  EXPECT_EQ(schrift().pointSize(), 20);
}

TEST_F(Listenausgabe, StrgUndRadÄndernDieGrößeWieDieKnöpfe) {
  öffne({"x"});
  QWidget* feld = kind<QPlainTextEdit>("t")->viewport();
  const QPointF mitte = feld->rect().center();
  QWheelEvent rad(mitte, feld->mapToGlobal(mitte), {}, {0, 120}, Qt::NoButton, Qt::ControlModifier,
                  Qt::NoScrollPhase, false);
  QApplication::sendEvent(feld, &rad);
  EXPECT_EQ(größe(), QString("11"));
  EXPECT_EQ(schrift().pointSize(), 11);
}

TEST_F(Listenausgabe, DerRandWirdBeimTippenBegrenzt) {
  öffne({"x"});
  tippe("tz", "31");
  EXPECT_EQ(rand(), QString("30"));
  tippe("tz", "-1");
  EXPECT_EQ(rand(), QString("0"));
  tippe("tz", "30");
  EXPECT_EQ(rand(), QString("30"));
  tippe("tz", "abc");
  EXPECT_EQ(rand(), QString());
  klicke("abbv");
  EXPECT_EQ(EinstellungenZahl[Zahlslots.textRand], 0);
}

// Printing

TEST_F(Listenausgabe, TextDruckenDrucktDasFeldUndLässtDruckaufLiegen) {
  öffne({"Völker", "# ", "#", "Königin €"});
  tippe("tz", "0");
  {
    const Druckdialog dialog(pdf());
    klicke("drucken");
  }
  const Pdf blatt(pdf());
  ASSERT_EQ(blatt.seitenzahl(), 2);
  EXPECT_EQ(blatt.zeilen(1), QStringList({"Völker", "#"}));
  EXPECT_EQ(blatt.zeilen(2), QStringList({"Königin €"}));
  EXPECT_EQ(Textdatei::lesenGanz(druckauf()), QString("Völker\r\n# \r\n#\r\nKönigin €\r\n"));
  EXPECT_FALSE(QFile::exists(AppPfad + "DRUCKAUF.TXT"));
}

TEST_F(Listenausgabe, DateiDruckenDrucktDieDateiUndNimmtAuchRauteMitLeerzeichen) {
  öffne({"Völker", "# ", "zwei", "#", "drei"});
  {
    const Druckdialog dialog(pdf());
    klicke("dateidrucken");
  }
  const Pdf blatt(pdf());
  ASSERT_EQ(blatt.seitenzahl(), 3);
  EXPECT_EQ(blatt.zeilen(2), QStringList({"zwei"}));
  EXPECT_FALSE(QFile::exists(druckauf()));
}

TEST_F(Listenausgabe, NurDateiDruckenDrucktHinter32000ZeichenWeiter) {
  liste(QStringList(400, QString(98, 'a')) + QStringList{"ende"});
  boxen.hinweis(Textausgabe::zuGroßText());
  öffne();
  QString letzte;
  const auto drucke = [&](const QString& knopf) {
    const Druckdialog dialog(pdf());
    klicke(knopf);
    const Pdf blatt(pdf());
    return blatt.zeilen(blatt.seitenzahl()).value(-1 + blatt.zeilen(blatt.seitenzahl()).size());
  };
  EXPECT_NE(drucke("drucken"), QString("ende"));
  EXPECT_EQ(drucke("dateidrucken"), QString("ende"));
}

TEST_F(Listenausgabe, QuerformatUndGrößeGehenAufDasPapier) {
  öffne(QStringList(60, "Zeile"));
  klicke("druckformat_1");
  kind<QComboBox>("größe")->setCurrentText("20");
  {
    const Druckdialog dialog(pdf());
    klicke("dateidrucken");
  }
  const Pdf blatt(pdf());
  EXPECT_TRUE(blatt.querformat());
  EXPECT_GE(blatt.seitenzahl(), 3);  // 60 lines of about 23 points on 538 points of height
}

TEST_F(Listenausgabe, SchriftFettUndKursivGehenAufDasPapier) {
  öffne({"Zeile"});
  const auto gedruckt = [this] {
    const Druckdialog dialog(pdf());
    klicke("dateidrucken");
    return Pdf(pdf()).schriften();
  };
  const QString familie = schrift().family().remove(' ');
  const QString schlicht = gedruckt();
  EXPECT_TRUE(schlicht.contains(familie)) << schlicht.toStdString();
  EXPECT_FALSE(schlicht.contains("Bold"));
  klicke("kon_0");
  klicke("kon_1");
  const QString betont = gedruckt();
  EXPECT_TRUE(betont.contains("Bold")) << betont.toStdString();
  EXPECT_TRUE(betont.contains("Italic") || betont.contains("Oblique")) << betont.toStdString();
}

TEST_F(Listenausgabe, DerRandSchiebtDieZeilenNachRechts) {
  öffne({"Zeile"});
  const auto links = [this](const QString& rand) {
    tippe("tz", rand);
    const Druckdialog dialog(pdf());
    klicke("dateidrucken");
    const auto wörter = Pdf(pdf()).wörter(1);
    return wörter.isEmpty() ? 0.0 : wörter[0].x;
  };
  const double ohne = links("0");
  const double mit = links("10");
  EXPECT_GT(mit - ohne, 50);  // ten characters of 10 points, about 6 points each
  EXPECT_LT(mit - ohne, 66);
}

TEST_F(Listenausgabe, DieErsteSeiteBeginntMitEinerLeerenZeile) {
  öffne({"eins", "#", "zwei"});
  {
    const Druckdialog dialog(pdf());
    klicke("drucken");
  }
  const Pdf blatt(pdf());
  ASSERT_EQ(blatt.seitenzahl(), 2);
  EXPECT_GT(blatt.wörter(1)[0].y - blatt.wörter(2)[0].y, 8);
}

TEST_F(Listenausgabe, LässtSichDruckaufNichtSchreibenNenntDieMeldungDieDatei) {
  öffne({"x"});
  ASSERT_TRUE(QDir().mkdir(druckauf()));  // a folder of that name is in the way
  boxen.hinweisMit("DRUCKAUF.TXT");
  klicke("drucken");
}

TEST_F(Listenausgabe, IstDieDateiWegSagtDasDateiDrucken) {
  öffne({"x"});
  QFile::remove(AusgabeDatei);
  boxen.hinweisMit("LISTE.TXT");
  klicke("dateidrucken");
}

TEST_F(Listenausgabe, AbbrechenImDruckdialogDrucktNichtsUndLässtDruckaufLiegen) {
  öffne({"x"});
  {
    const Druckdialog dialog({});
    klicke("drucken");
  }
  EXPECT_TRUE(QFile::exists(druckauf()));
  EXPECT_TRUE(form->isVisible());
}

// A list of several pages, with lines that are too wide and a page that fills up.
TEST_F(Listenausgabe, GedruckteSeitenWieVonHandGesetzt) {
  QStringList zeilen{"Völkerliste vom 15.06.2024", "", "NR   NAME                 HONIG_KG",
                     "------------------------------------"};
  for (int i = 1; i <= 5; ++i)
    zeilen << QString("%1    Königin Änne %1        %2,50").arg(i).arg(10 * i);
  zeilen << " # "
         << "Notizen"
         << "15.06.2024  Weiselzelle ausgebrochen, Volk ist ruhig und trägt sehr gut Pollen ein, "
            "der Honigraum bleibt noch eine Woche auf dem Volk sitzen"
         << "#";
  öffne(zeilen);
  tippe("tz", "2");
  kind<QComboBox>("größe")->setCurrentText("12");
  {
    const Druckdialog dialog(pdf());
    klicke("dateidrucken");
  }
  const Pdf blatt(pdf());
  QString alles;
  for (int seite = 1; seite <= blatt.seitenzahl(); ++seite)
    alles += QString("=== Seite %1\n").arg(seite) + blatt.zeilen(seite).join('\n') + '\n';
  QFile golden(TOVA_TESTDATEN "/druckseiten.golden.txt");
  ASSERT_TRUE(golden.open(QFile::ReadOnly)) << "the golden text is missing";
  EXPECT_EQ(alles.toStdString(), QString::fromUtf8(golden.readAll()).toStdString());
}

// The window

TEST_F(Listenausgabe, BeschriftungenUndNamen) {
  öffne({"x"});
  const QList<std::pair<QString, QString>> texte{{"plus5_0", "Schriftgröße +5"},
                                                 {"plus1_0", "Schriftgröße +1"},
                                                 {"plus1_1", "Schriftgröße -1"},
                                                 {"plus5_1", "Schriftgröße -5"},
                                                 {"drucken", "&Text drucken"},
                                                 {"dateidrucken", "&Datei drucken"},
                                                 {"hilfe", "&Hilfe"},
                                                 {"abbv", "&Schließen"},
                                                 {"kon_0", "Fett"},
                                                 {"kon_1", "Kursiv"},
                                                 {"druckformat_0", "Hochformat"},
                                                 {"druckformat_1", "Querformat"}};
  for (const auto& [name, beschriftung] : texte)
    EXPECT_EQ(kind<QAbstractButton>(name)->text(), beschriftung);
  for (const QString& name : QStringList{"t", "kom", "größe", "tz"})
    EXPECT_FALSE(kind(name)->accessibleName().isEmpty()) << name.toStdString();
}

TEST_F(Listenausgabe, HilfeZeigtIhrThema) {
  QString thema;
  Formular::setHilfe([&thema](QWidget*, const QString& t) { thema = t; });
  öffne({"x"});
  klicke("hilfe");
  EXPECT_EQ(thema, QString("TA_Textausgabe"));
}

TEST_F(Listenausgabe, ÖffnenZeigtImmerDasselbeFensterMitDerNeuenListe) {
  QWidget haupt;
  haupt.show();
  QStringList gesehen;
  QList<QWidget*> fenster;
  for (const QString& zeile : {QString("erste"), QString("zweite")}) {
    liste({zeile});
    QTimer::singleShot(20, &haupt, [&] {
      QWidget* offen = QApplication::activeModalWidget();
      ASSERT_NE(offen, nullptr);
      fenster << offen;
      gesehen << offen->findChild<QPlainTextEdit*>("t")->toPlainText();
      offen->close();
    });
    TA_Textausgabe::öffnen(&haupt);
  }
  EXPECT_EQ(gesehen, QStringList({"erste\n", "zweite\n"}));
  ASSERT_EQ(fenster.size(), 2);
  EXPECT_EQ(fenster[0], fenster[1]);
}

class ListenausgabeBild : public Listenausgabe, public testing::WithParamInterface<int> {
 protected:
  const Schriftgröße m_schrift{GetParam()};
};

TEST_P(ListenausgabeBild, AllesHatPlatzAuf1366Mal768) {
  QStringList zeilen{"VOLKDATEN",
                     "Volknummer:        12",
                     "Volkname:          Königin Ännchen",
                     "",
                     "",
                     "Honigernte",
                     "DATUM       MENGE_KG  HONIGSORTE           QUALITÄT   ZEIT_H  KOSTEN "
                     "HONIGWERT  CHARGE          BEMERKUNG",
                     QString(100, '-')};
  for (int i = 1; i <= 30; ++i)
    zeilen << QString(
                  "%1.06.2024     12,50  Frühtracht           1.Wahl       1,50    0,00     "
                  "85,00  24-%1           hell, cremig gerührt")
                  .arg(i, 2, 10, QChar('0'));
  öffne(zeilen);
  passtAufKleinenSchirm(*form);
  form->resize(form->minimumSizeHint());
  QTest::qWait(10);
  for (auto* teil : form->findChildren<QWidget*>())
    if (teil->isVisible() &&
        (qobject_cast<QAbstractButton*>(teil) != nullptr ||
         qobject_cast<QLabel*>(teil) != nullptr) &&
        teil->parentWidget() != nullptr && !teil->objectName().startsWith("qt_")) {
      EXPECT_GE(teil->width(), teil->minimumSizeHint().width()) << teil->objectName().toStdString();
      EXPECT_GE(teil->height(), teil->minimumSizeHint().height());
    }
  EXPECT_GE(kind<QPlainTextEdit>("t")->height(), 70);
  bild(QString("%1_klein").arg(GetParam()));
  form->resize(1280, 700);
  QTest::qWait(10);
  bild(QString::number(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(Schrift, ListenausgabeBild, testing::Values(100, 150));

}  // namespace
