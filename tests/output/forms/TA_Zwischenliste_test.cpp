#include "output/forms/TA_Zwischenliste.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QDir>
#include <QHeaderView>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "gemeinsam/Formularprobe.h"
#include "gemeinsam/Programmordner.h"
#include "output/Listen.h"
#include "output/Uebergabe.h"
#include "platform/controls/Oeffnen.h"
#include "platform/files/Textdatei.h"
#include "platform/files/Xlsx.h"

using namespace TZ_Variablen;

namespace {

const QString KeineDaten = "Es sind keine Daten in der Liste.";

// A program folder in which files are not really opened.
class Ausgabeordner : public testing::Test {
 protected:
  void SetUp() override {
    EinstellungenText[Textslots.trennzeichen] = " | ";
    Fensterablage::setDatei({});
    Öffnen::setÖffner([this](const QString& pfad) {
      geöffnet += pfad;
      return öffnenGelingt;
    });
  }
  void TearDown() override {
    Öffnen::setÖffner({});
    Formular::setHilfe({});
    Fensterablage::setDatei({});
  }

  Programmordner ordner{"20.11.2026"};
  QStringList geöffnet;
  bool öffnenGelingt = true;
};

// The form over a list that was handed on.
class ZwischenlisteTest : public Formularprobe<TA_Zwischenliste, Ausgabeordner> {
 protected:
  using Formularprobe::öffne;
  void öffne(const Ausgabeliste& liste) {
    Übergabe::schreiben(Übergabe::datei(), liste);
    öffne();
  }
  Grid* gridli() { return kind<Grid>("gridli"); }
  // Waits for the text output, looks at it and closes it.
  void beiTextausgabe(std::function<void(QWidget*)> prüfung = {}) {
    auto* uhr = new QTimer(form.get());
    uhr->setInterval(5);
    QObject::connect(uhr, &QTimer::timeout, form.get(), [this, uhr, prüfung] {
      QWidget* fenster = QApplication::activeModalWidget();
      if (fenster == nullptr || fenster->objectName() != "TA_Textausgabe") return;
      uhr->stop();
      textausgaben++;
      if (prüfung) prüfung(fenster);
      fenster->close();
    });
    uhr->start();
  }
  static std::string datei(const QString& name) {
    return Textdatei::vonCp1252(Listen::bytes(AppPfad + name)).toStdString();
  }

  int textausgaben = 0;
};

TEST_F(ZwischenlisteTest, NamenUndBeschriftungen) {
  öffne(Ausgabeliste(Listen::ernte()));
  EXPECT_EQ(form->objectName(), "TA_Zwischenliste");
  EXPECT_EQ(form->windowTitle(), "Daten listen");
  const QMap<QString, QString> knöpfe{
      {"kon", "Automatische Spaltenbreite"},  {"comtext", "&Text-Auswertung"},
      {"comexcel", "&Excel-Auswertung"},      {"roexplorer_0", "Stan&dard-Explorer"},
      {"roexplorer_1", "&Internet-Explorer"}, {"hilfe", "&Hilfe"},
      {"cmdschließen", "&Schließen"}};
  QStringList mnemonics;
  for (auto i = knöpfe.begin(); i != knöpfe.end(); ++i) {
    EXPECT_EQ(kind<QAbstractButton>(i.key())->text(), i.value());
    const qsizetype und = i.value().indexOf('&');
    if (und >= 0) mnemonics += i.value().mid(und + 1, 1).toLower();
  }
  EXPECT_EQ(mnemonics.removeDuplicates(), 0);
  EXPECT_FALSE(gridli()->accessibleName().isEmpty());
}

TEST_F(ZwischenlisteTest, DieEinträgeDesPopups) {
  öffne(Ausgabeliste(Listen::ernte()));
  const auto* popup = kind<QMenu>("popzeile");
  QStringList einträge;
  for (const QAction* a : popup->actions())
    einträge += a->isSeparator() ? QString("-") : a->objectName() + " " + a->text();
  EXPECT_EQ(
      einträge,
      (QStringList{"popzeile_0 Übergabe an &Texteditor", "popzeile_1 Übergabe an &Excel",
                   "popzeile_2 Übergabe an &Standard-Explorer",
                   "popzeile_3 Übergabe an &Internet-Explorer", "-", "popzeile_5 &Schließen"}));
}

TEST_F(ZwischenlisteTest, DieListeStehtMitAllenSpaltenUndÜberschriftenDa) {
  öffne(Ausgabeliste(Listen::ernte(), {"Volk", "Ernten", "Menge", "Erlös €", "Tag"}));
  ASSERT_EQ(gridli()->zeilen(), 3);
  ASSERT_EQ(gridli()->spalten(), 5);
  EXPECT_EQ(gridli()->überschrift(0), "Volk");
  EXPECT_EQ(gridli()->überschrift(4), "Tag");
  EXPECT_EQ(gridli()->zelle(1, "Erlös"), "1049,00");
  EXPECT_EQ(gridli()->zelle(0, "Datum"), "04.05.2026");
}

TEST_F(ZwischenlisteTest, OhneGridliIstDieListeLeerUndJedeAusgabeSagtEs) {
  öffne();
  EXPECT_EQ(gridli()->zeilen(), 0);
  for (const char* name : {"comtext", "comexcel", "roexplorer_0", "roexplorer_1"}) {
    boxen.hinweis(KeineDaten);
    klicke(name);
  }
  EXPECT_EQ(QDir(AppPfad).entryList(QDir::Files), QStringList());
  EXPECT_TRUE(geöffnet.isEmpty());
}

TEST_F(ZwischenlisteTest, EineListeOhneZeilenSagtEsAuch) {
  öffne(Ausgabeliste(Listen::ernte(), {}, {}));
  boxen.hinweis(KeineDaten);
  klicke("comtext");
}

TEST_F(ZwischenlisteTest, TextAuswertungSchreibtListeUndÖffnetDieTextausgabe) {
  EinstellungenZahl[Zahlslots.datumAlsListenkopf] = 1;
  EinstellungenText[Textslots.kopftext] = "Kopf";
  EinstellungenText[Textslots.trennzeichen] = "";
  öffne(Ausgabeliste(Listen::block({{"Ort", Feldtyp::Text, 9}, {"kg", Feldtyp::Einfach, 0}},
                                   {{"Wald", 7.5}, {".", QVariant()}, {"Wiese", 12}})));
  QString titel;
  beiTextausgabe([&](QWidget* fenster) { titel = fenster->windowTitle(); });
  klicke("comtext");
  EXPECT_EQ(textausgaben, 1);
  EXPECT_EQ(AusgabeDatei, AppPfad + "LISTE.TXT");
  EXPECT_TRUE(titel.contains("LISTE.TXT"));
  EXPECT_EQ(datei("LISTE.TXT"),
            "Datum: 20.11.2026\r\nKopf\r\n\r\n"
            "Ort   | kg \r\n-----------\r\nWald  | 7,5\r\n\r\n\r\nOrt   | kg \r\nWiese |  12\r\n");
}

TEST_F(ZwischenlisteTest, DieAusgabenFolgenDerSortierungImFenster) {
  öffne(Ausgabeliste(Listen::ernte()));
  auto* kopf = gridli()->horizontalHeader();
  const QPoint aufMenge(kopf->sectionViewportPosition(1) + 5, kopf->height() / 2);
  QTest::mouseClick(kopf->viewport(), Qt::LeftButton, {}, aufMenge);
  QTest::mouseClick(kopf->viewport(), Qt::LeftButton, {}, aufMenge);
  ASSERT_EQ(gridli()->zelle(0, "Volkname"), QString("Bärbel"));
  beiTextausgabe();
  klicke("comtext");
  const std::string text = datei("LISTE.TXT");
  EXPECT_LT(text.find("Bärbel"), text.find("Anna"));
  EXPECT_LT(text.find("Anna"), text.find("Cäsar"));
  klicke("comexcel");
  EXPECT_EQ(Xlsx(AppPfad + "tova_liste.xlsx").text("A2"), QString("Bärbel"));
}

TEST_F(ZwischenlisteTest, ExcelAuswertungSchreibtUndÖffnetDieTabelle) {
  FormModus = "";
  öffne(Ausgabeliste(Listen::ernte(), {"Volk"}));
  klicke("comexcel");
  EXPECT_EQ(geöffnet, QStringList{AppPfad + "tova_liste.xlsx"});
  EXPECT_EQ(Xlsx(AppPfad + "tova_liste.xlsx").text("A1"), "Volk");
  EXPECT_EQ(FormModus, "");
}

TEST_F(ZwischenlisteTest, OhneProgrammFürTabellenSagtEsUndSetztFormModus) {
  öffnenGelingt = false;
  öffne(Ausgabeliste(Listen::ernte()));
  boxen.hinweis("Excel konnte nicht geöffnet werden!");
  klicke("comexcel");
  EXPECT_EQ(FormModus, "xyz");
}

TEST_F(ZwischenlisteTest, EineGesperrteTabelleNenntDieMeldungUndÖffnetNichts) {
  ASSERT_TRUE(QDir().mkdir(AppPfad + "tova_liste.xlsx"));
  öffne(Ausgabeliste(Listen::ernte()));
  boxen.hinweisMit("tova_liste.xlsx");
  klicke("comexcel");
  EXPECT_TRUE(geöffnet.isEmpty());
}

TEST_F(ZwischenlisteTest, BeideExplorerÖffnenDenWebbericht) {
  EinstellungenZahl[Zahlslots.webzeilen] = 2;
  EinstellungenZahl[Zahlslots.seitenzeile] = 1;
  EinstellungenZahl[Zahlslots.anzahlzeile] = 1;
  öffne(Ausgabeliste(Listen::ernte()));
  klicke("roexplorer_0");
  klicke("roexplorer_1");
  EXPECT_EQ(geöffnet, (QStringList{AppPfad + "report.htm", AppPfad + "report.htm"}));
  const QByteArray zweite = Listen::bytes(AppPfad + "report-2.htm");
  EXPECT_TRUE(zweite.contains("Seite 2 von 2"));
  EXPECT_TRUE(zweite.contains("Anzahl Datensätze: 3"));
}

TEST_F(ZwischenlisteTest, OhneBrowserNenntDieMeldungDieDatei) {
  öffnenGelingt = false;
  öffne(Ausgabeliste(Listen::ernte()));
  boxen.hinweisMit("report.htm");
  klicke("roexplorer_0");
}

TEST_F(ZwischenlisteTest, JederPunktDesPopupsTutWasSeinKnopfTut) {
  öffne(Ausgabeliste(Listen::ernte()));
  beiTextausgabe();
  kind<QAction>("popzeile_0")->trigger();
  EXPECT_EQ(textausgaben, 1);
  for (const char* name : {"popzeile_1", "popzeile_2", "popzeile_3"})
    kind<QAction>(name)->trigger();
  EXPECT_EQ(geöffnet, (QStringList{AppPfad + "tova_liste.xlsx", AppPfad + "report.htm",
                                   AppPfad + "report.htm"}));
  kind<QAction>("popzeile_5")->trigger();
  EXPECT_FALSE(form->isVisible());
}

TEST_F(ZwischenlisteTest, RechtsklickAufDieListeÖffnetDasPopup) {
  öffne(Ausgabeliste(Listen::ernte()));
  auto* popup = kind<QMenu>("popzeile");
  QContextMenuEvent rechts(QContextMenuEvent::Mouse, QPoint(20, 20),
                           gridli()->viewport()->mapToGlobal(QPoint(20, 20)));
  QApplication::sendEvent(gridli()->viewport(), &rechts);
  EXPECT_TRUE(popup->isVisible());
  popup->close();
}

TEST_F(ZwischenlisteTest, AutomatischeSpaltenbreiteNachPlatz54) {
  const Daten d = Listen::block({{"A", Feldtyp::Text, 99}, {"x", Feldtyp::Text, 9}},
                                {{QString(120, 'W'), "1"}});
  EinstellungenZahl[Zahlslots.spaltenbreiteAutomatisch] = 0;
  öffne(Ausgabeliste(d));
  EXPECT_FALSE(kind<QCheckBox>("kon")->isChecked());
  const int vorher = gridli()->columnWidth(0);
  EXPECT_LT(vorher, gridli()->fontMetrics().horizontalAdvance(QString(120, 'W')));
  form.reset();

  EinstellungenZahl[Zahlslots.spaltenbreiteAutomatisch] = 1;
  öffne(Ausgabeliste(d));
  EXPECT_TRUE(kind<QCheckBox>("kon")->isChecked());
  EXPECT_GE(gridli()->columnWidth(0), gridli()->fontMetrics().horizontalAdvance(QString(120, 'W')));
}

TEST_F(ZwischenlisteTest, KeineSpalteWirdSchmalerAlsSiebenundzwanzigPunkte) {
  EinstellungenZahl[Zahlslots.spaltenbreiteAutomatisch] = 1;
  öffne(
      Ausgabeliste(Listen::block({{"i", Feldtyp::Text, 9}, {"l", Feldtyp::Text, 9}}, {{"", ""}})));
  for (int i : {0, 1}) EXPECT_GE(gridli()->columnWidth(i), 27);
}

TEST_F(ZwischenlisteTest, EinHakenInAutomatischeSpaltenbreitePasstDieSpaltenAn) {
  öffne(Ausgabeliste(Listen::block({{"A", Feldtyp::Text, 99}}, {{QString(120, 'W')}})));
  const int vorher = gridli()->columnWidth(0);
  klicke("kon");
  EXPECT_TRUE(kind<QCheckBox>("kon")->isChecked());
  EXPECT_GT(gridli()->columnWidth(0), vorher);
}

TEST_F(ZwischenlisteTest, AngepassteBreitenVerdrängenDieGezogenenNicht) {
  Fensterablage::setDatei(AppPfad + "TOVA2.LAY");
  const Daten d =
      Listen::block({{"A", Feldtyp::Text, 99}, {"B", Feldtyp::Text, 9}}, {{QString(60, 'W'), "1"}});
  öffne(Ausgabeliste(d));
  gridli()->setColumnWidth(0, 133);
  const QString schlüssel = "Spaltenbreiten/TOVA/ta_zwischenliste_gridli/ColWidths";
  const QVariant gezogen = Fensterablage::lesen(schlüssel);
  EXPECT_EQ(gezogen.toList().value(0).toInt(), 133);
  klicke("kon");
  EXPECT_NE(gridli()->columnWidth(0), 133);
  EXPECT_EQ(Fensterablage::lesen(schlüssel), gezogen);
  klicke("kon");
  form->close();
  öffne(Ausgabeliste(d));
  EXPECT_EQ(gridli()->columnWidth(0), 133);
}

TEST_F(ZwischenlisteTest, SchließenMerktSichDenHakenUndLeertDieListe) {
  EinstellungenZahl[Zahlslots.spaltenbreiteAutomatisch] = 5;
  öffne(Ausgabeliste(Listen::ernte()));
  klicke("cmdschließen");
  EXPECT_EQ(EinstellungenZahl[Zahlslots.spaltenbreiteAutomatisch], 1);
  EXPECT_FALSE(form->isVisible());
  EXPECT_EQ(gridli()->zeilen(), 0);
  öffne();
  klicke("kon");
  QTest::keyClick(form.get(), Qt::Key_Escape);
  EXPECT_EQ(EinstellungenZahl[Zahlslots.spaltenbreiteAutomatisch], 0);
  EXPECT_TRUE(QFile::exists(AppPfad + "gridli.txt"));
}

TEST_F(ZwischenlisteTest, HilfeUndF1ZeigenDasThemaDesFormulars) {
  QStringList themen;
  Formular::setHilfe([&](QWidget*, const QString& thema) { themen += thema; });
  öffne(Ausgabeliste(Listen::ernte()));
  klicke("hilfe");
  QTest::keyClick(form.get(), Qt::Key_F1);
  EXPECT_EQ(themen, (QStringList{"TA_Zwischenliste", "TA_Zwischenliste"}));
}

TEST_F(ZwischenlisteTest, EineUnlesbareÜbergabeWirdGemeldetStattGezeigt) {
  QFile datei(Übergabe::datei());
  ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
  datei.write("etwas anderes");
  datei.close();
  TA_Zwischenliste fenster;
  EXPECT_THROW(fenster.zeigen(), Dateifehler);
  EXPECT_FALSE(fenster.isVisible());
}

TEST_F(ZwischenlisteTest, EineLangeListeHältDasFensterLebendigUndZeigtDenFortschritt) {
  QList<QVariantList> zeilen;
  std::vector<Spalte> spalten;
  for (int i = 0; i < 20; ++i) spalten.push_back({"S" + QString::number(i), Feldtyp::Text, 9});
  QVariantList zeile;
  for (int i = 0; i < 20; ++i) zeile += "Wert";
  for (int i = 0; i < 15000; ++i) zeilen += zeile;
  öffne(Ausgabeliste(Listen::block(spalten, zeilen)));
  auto* meter = kind<QProgressBar>("meter");
  EXPECT_FALSE(meter->isVisible());
  bool gesehen = false;
  bool geschlossen = false;
  int größter = 0;
  QTimer uhr;
  QObject::connect(&uhr, &QTimer::timeout, form.get(), [&] {
    gesehen = gesehen || meter->isVisible();
    größter = std::max(größter, meter->value());
    // A close in the middle of the run has to wait.
    if (meter->isVisible() && !geschlossen) {
      geschlossen = true;
      form->close();
    }
  });
  uhr.start(0);
  klicke("comexcel");
  uhr.stop();
  EXPECT_TRUE(gesehen);
  EXPECT_GT(größter, 0);
  EXPECT_TRUE(form->isVisible());
  EXPECT_FALSE(meter->isVisible());
  EXPECT_EQ(geöffnet.size(), 1);
}

TEST_F(ZwischenlisteTest, AufrufMitZeilenZeigtSieMitIhrenÜberschriften) {
  int gesehen = 0;
  QTimer uhr;
  QObject::connect(&uhr, &QTimer::timeout, qApp, [&] {
    auto* fenster = QApplication::activeModalWidget();
    if (fenster == nullptr) return;
    uhr.stop();
    EXPECT_EQ(fenster->objectName(), "TA_Zwischenliste");
    auto* liste = fenster->findChild<Grid*>("gridli");
    EXPECT_EQ(liste->überschrift(0), "Volk");
    EXPECT_EQ(liste->überschrift(1), "Anz_Ernten");
    gesehen = liste->zeilen();
    fenster->close();
  });
  uhr.start(5);
  zwischenlisteZeigen(nullptr, Listen::ernte(), {"Volk"});
  EXPECT_EQ(gesehen, 3);
}

TEST_F(ZwischenlisteTest, AufrufMitEinemGitterZeigtWasEsZeigt) {
  Grid grid;
  grid.setDaten(Listen::ernte());
  grid.setÜberschrift("Volkname", "Volk");
  grid.setAnzeige("Anz_Ernten", [](const QVariant& w) { return w.toString() + " mal"; });
  grid.setSpalteVerborgen("Erlös", true);
  grid.sortiere(0, Qt::DescendingOrder);
  QStringList zellen;
  QTimer uhr;
  QObject::connect(&uhr, &QTimer::timeout, qApp, [&] {
    auto* fenster = QApplication::activeModalWidget();
    if (fenster == nullptr) return;
    uhr.stop();
    auto* liste = fenster->findChild<Grid*>("gridli");
    EXPECT_EQ(liste->überschrift(0), "Volk");
    for (int z = 0; z < liste->zeilen(); ++z)
      for (int s = 0; s < liste->spalten(); ++s) zellen += liste->text(z, s);
    fenster->close();
  });
  uhr.start(5);
  zwischenlisteZeigen(nullptr, grid);
  EXPECT_EQ(zellen, (QStringList{"Cäsar", " mal", "", "", "", "Bärbel", "10 mal", "7", "1049,00",
                                 "21.07.2026", "Anna", "2 mal", "12,5", "87,50", "04.05.2026"}));
}

}  // namespace
