#include "evaluations/forms/TW_Listengenerator.h"

#include <QElapsedTimer>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTimer>

#include "colonies/Testbetrieb.h"
#include "gemeinsam/Bildschirm.h"
#include "gemeinsam/Formularprobe.h"
#include "gemeinsam/Testliste.h"
#include "platform/files/Textdatei.h"

using namespace TZ_Variablen;

namespace {

// Acts in the next modal window that isn't the form itself and closes it.
class Dialogbesuch {
 public:
  Dialogbesuch(const QString& name, std::function<void(QWidget*)> aktion)
      : m_name(name), m_aktion(std::move(aktion)) {
    m_uhr.start();
    QObject::connect(&m_takt, &QTimer::timeout, &m_takt, [this] { prüfen(); });
    m_takt.start(5);
  }
  ~Dialogbesuch() { EXPECT_TRUE(m_war) << m_name.toStdString(); }

 private:
  void prüfen() {
    QWidget* fenster = QApplication::activeModalWidget();
    if (fenster == nullptr || fenster->objectName() == "TW_Listengenerator") return;
    m_takt.stop();
    EXPECT_EQ(fenster->objectName().toStdString(), m_name.toStdString());
    m_war = fenster->objectName() == m_name;
    if (m_war) m_aktion(fenster);
    if (fenster->isVisible()) fenster->close();
  }

  QString m_name;
  std::function<void(QWidget*)> m_aktion;
  QTimer m_takt;
  QElapsedTimer m_uhr;
  bool m_war = false;
};

class TWListengenerator : public Formularprobe<TW_Listengenerator, Testbetrieb> {
 protected:
  void SetUp() override {
    Formularprobe::SetUp();
    for (const char* nummer : {"1", "2", "3"}) neuesVolk(nummer);
    m_liste = std::make_unique<Testliste>();
  }
  void TearDown() override {
    if (form && form->isVisible()) {  // what a test has typed is of no use any more
      kind<QPlainTextEdit>("t")->document()->setModified(false);
      form->close();
    }
    Formularprobe::TearDown();
  }

  QPlainTextEdit* t() { return kind<QPlainTextEdit>("t"); }
  QListWidget* kom() { return kind<QListWidget>("kom"); }
  std::string text() { return t()->toPlainText().toStdString(); }
  std::string dateiname() { return kind<QLabel>("dateiname")->text().toStdString(); }
  void schreibe(const QString& text) {
    t()->setFocus();
    tasten(t(), text);
  }
  void wähleFeld(const QString& bezeichnung) {
    const auto gefunden = kom()->findItems(bezeichnung + " -> ", Qt::MatchStartsWith);
    ASSERT_EQ(gefunden.size(), 1);
    kom()->setCurrentItem(gefunden.first());
    kom()->scrollToItem(gefunden.first());
  }
  void doppelklicke(const QString& bezeichnung) {
    wähleFeld(bezeichnung);
    const QPoint ort = kom()->visualItemRect(kom()->currentItem()).topLeft() + QPoint(8, 4);
    QTest::mouseClick(kom()->viewport(), Qt::LeftButton, {}, ort);
    QTest::mouseDClick(kom()->viewport(), Qt::LeftButton, {}, ort);
  }
  void speichereUnter(const QString& name, const char* knopf = "speichernunter") {
    const Dialogbesuch besuch("TS_Dateispeichern", [&](QWidget* dialog) {
      tippe(dialog->findChild<QLineEdit*>("t"), name);
      klicke(dialog->findChild<QAbstractButton*>(name.isEmpty() ? "schliessen" : "ok"));
    });
    klicke(knopf);
  }
  void lade(const QString& name) {
    const Dialogbesuch besuch("TS_Dateiauswahl", [&](QWidget* dialog) {
      auto* liste = dialog->findChild<QListWidget*>("Datei1");
      liste->setCurrentItem(liste->findItems(name, Qt::MatchExactly).value(0));
      klicke(dialog->findChild<QAbstractButton*>("ok"));
    });
    klicke("laden");
  }
  static std::string datei(const QString& name) {
    return Textdatei::lesenGanz(AppPfad + name).toStdString();
  }
  static QStringList liste() { return Textdatei::lesen(AppPfad + "LISTE.TXT"); }
  // Lists and gives what the text output then shows.
  std::string gelistet() {
    std::string gezeigt;
    const Dialogbesuch besuch("TA_Textausgabe", [&](QWidget* ausgabe) {
      gezeigt = ausgabe->findChild<QPlainTextEdit*>("t")->toPlainText().toStdString();
    });
    klicke("drucken");
    return gezeigt;
  }

  std::unique_ptr<Testliste> m_liste;
};

const QString NeuFrage =
    "Ein neuer Text löscht den geänderten aktuellen Text. Soll der aktuelle Text vorher gesichert "
    "werden?";
const QString LadenFrage =
    "Das laden eines neuen Textes löscht den geänderten aktuellen Text. Soll der aktuelle Text "
    "vorher gesichert werden?";
const QString SchließenFrage =
    "Der geänderte Text ist noch nicht gesichert. Soll er vor dem Schließen gesichert werden?";

TEST_F(TWListengenerator, BeimÖffnenStehenDieBeispieleImOrdner) {
  öffne();
  EXPECT_EQ(form->windowTitle().toStdString(),
            "Listengenerator (für frei definierbare Listen - kombiniert mit beliebigem Text)");
  EXPECT_TRUE(Textdatei::existiert(AppPfad + "Beispiel_Wabeneintrag.TKS"));
  EXPECT_TRUE(Textdatei::existiert(AppPfad + "Beispiel_Gesamtinfos.TKS"));
  EXPECT_EQ(kom()->count(), 80);
  EXPECT_EQ(kom()->item(0)->text().toStdString(), "Volknr -> {Volknr--}");
  EXPECT_EQ(text(), "");
}

TEST_F(TWListengenerator, OhneBeispieleÖffnetEsTrotzdem) {
  const QString name = "Beispiel_Wabeneintrag.TKS";
  ASSERT_TRUE(QDir(AppPfad).mkdir(name));
  boxen.hinweisMit(name);
  öffne();
  EXPECT_TRUE(offen());
}

TEST_F(TWListengenerator, EinFeldKommtAnDieSchreibmarke) {
  öffne();
  schreibe("vorherhinterher");
  for (int i = 0; i < 9; ++i) QTest::keyClick(t(), Qt::Key_Left);
  doppelklicke("Schwarmtrieb");
  EXPECT_EQ(text(), "vorher{ST}hinterher");
  EXPECT_EQ(QApplication::focusWidget(), t());
  schreibe(" ");
  wähleFeld("Drohnenwaben");
  kom()->setFocus();
  QTest::keyClick(kom(), Qt::Key_Return);
  EXPECT_EQ(text(), "vorher{ST} {DW}hinterher");
  wähleFeld("Letztes Gewicht");
  klicke("einfügen");
  EXPECT_EQ(text(), "vorher{ST} {DW}{LG_Gew}hinterher");
}

TEST_F(TWListengenerator, DieMarkiertenVölkerWerdenGelistet) {
  öffne();
  m_liste->setMarkierteZeilen({0, 2});
  schreibe("Volk {Volknr--}.");
  EXPECT_EQ(gelistet(), "Volk          1.\nVolk          3.\n");
  EXPECT_EQ(AusgabeDatei.toStdString(), (AppPfad + "LISTE.TXT").toStdString());
  EXPECT_EQ(datei("druck.txt"), "Volk {Volknr--}.");
  EXPECT_TRUE(offen());
  EXPECT_EQ(text(), "Volk {Volknr--}.");
}

TEST_F(TWListengenerator, BeiZweiJeSeiteStehtDerSeitenwechselNachDemZweitenVolk) {
  öffne();
  m_liste->setMarkierteZeilen({0, 1, 2});
  schreibe("{Volknr--}");
  tippe("sevText1", "2");
  gelistet();
  EXPECT_EQ(liste(), QStringList({"         1", "         2", "#", "         3"}));
}

TEST_F(TWListengenerator, OhneMarkiertesVolkWirdNichtGelistet) {
  öffne();
  m_liste->setMarkierteZeilen({});
  schreibe("{Volknr--}");
  boxen.hinweis(
      "Der Text wird für alle markierten (blau Hinterlegten) Völker aus dem Hauptmodul gelistet. "
      "Da kein Volk markiert ist, kann die Liste nicht erstellt werden.");
  klicke("drucken");
  EXPECT_FALSE(Textdatei::existiert(AppPfad + "LISTE.TXT"));
}

TEST_F(TWListengenerator, EinGeladenerTextIstUnverändertUndBekommtKeineFrage) {
  Textdatei::schreiben(AppPfad + "Meiner.TKS", {"Völker", "", "{VS}"});
  öffne();
  lade("Meiner.TKS");
  EXPECT_EQ(text(), "Völker\n\n{VS}\n");
  EXPECT_EQ(dateiname(), "Meiner.TKS");
  klicke("neu");
  EXPECT_EQ(text(), "");
  EXPECT_EQ(dateiname(), "Neuer Text");
}

TEST_F(TWListengenerator, SpeichernSchreibtUnterDemNamenUndLässtDieDateiSonstWieSieWar) {
  Textdatei::schreiben(AppPfad + "Meiner.TKS", {"Völker", "", "{VS}"});
  öffne();
  lade("Meiner.TKS");
  schreibe("Alle ");
  EXPECT_EQ(dateiname(), "Meiner.TKS (geändert)");
  klicke("speichern");
  EXPECT_EQ(datei("Meiner.TKS"), "Alle Völker\r\n\r\n{VS}\r\n");
  EXPECT_EQ(dateiname(), "Meiner.TKS");
}

TEST_F(TWListengenerator, EinTextOhneNamenFragtBeimSpeichernDanach) {
  öffne();
  schreibe("{VS}");
  speichereUnter("Staerke", "speichern");
  EXPECT_EQ(datei("Staerke.TKS"), "{VS}");
  EXPECT_EQ(dateiname(), "Staerke.TKS");
}

TEST_F(TWListengenerator, EinVorhandenerNameWirdNurNachRückfrageÜberschrieben) {
  const QString frage =
      "Die Datei Alt.TKS existiert bereits auf dem Datenträger! Soll die Datei überschrieben "
      "werden?";
  Textdatei::schreibenGanz(AppPfad + "Alt.TKS", "alt");
  öffne();
  schreibe("neu");
  boxen.frage(frage, false, Meldungen::Vorgabe::Nein);
  speichereUnter("Alt");
  EXPECT_EQ(datei("Alt.TKS"), "alt");
  EXPECT_EQ(dateiname(), "Neuer Text (geändert)");
  boxen.frage(frage, true, Meldungen::Vorgabe::Nein);
  speichereUnter("Alt");
  EXPECT_EQ(datei("Alt.TKS"), "neu");
  EXPECT_EQ(dateiname(), "Alt.TKS");
}

TEST_F(TWListengenerator, NeuFragtObDerGeänderteTextGesichertWerdenSoll) {
  öffne();
  schreibe("eins");
  boxen.frage(NeuFrage, true);
  speichereUnter("Eins", "neu");
  EXPECT_EQ(datei("Eins.TKS"), "eins");
  EXPECT_EQ(text(), "");
  schreibe("zwei");
  boxen.frage(NeuFrage, false);
  klicke("neu");
  EXPECT_EQ(text(), "");
}

TEST_F(TWListengenerator, WerBeimSichernAbbrichtBehältSeinenText) {
  öffne();
  schreibe("wichtig");
  boxen.frage(NeuFrage, true);
  speichereUnter("", "neu");
  EXPECT_EQ(text(), "wichtig");
  EXPECT_EQ(dateiname(), "Neuer Text (geändert)");
}

TEST_F(TWListengenerator, EinNeuerTextOhneEinWortBrauchtKeineFrage) {
  öffne();
  schreibe("x");
  QTest::keyClick(t(), Qt::Key_Backspace);
  QTest::keyClick(t(), Qt::Key_Return);
  klicke("schließen");
  EXPECT_FALSE(offen());
}

TEST_F(TWListengenerator, LadenFragtObDerGeänderteTextGesichertWerdenSoll) {
  öffne();
  schreibe("eins");
  boxen.frage(LadenFrage, false);
  lade("Beispiel_Wabeneintrag.TKS");
  EXPECT_EQ(dateiname(), "Beispiel_Wabeneintrag.TKS");
  EXPECT_EQ(text().substr(0, 18), "Volknr: {Volknr--}");
}

TEST_F(TWListengenerator, OhneTextdateiSagtLadenEs) {
  öffne();
  for (const char* name : {"Beispiel_Wabeneintrag.TKS", "Beispiel_Gesamtinfos.TKS"})
    QFile::remove(AppPfad + name);
  boxen.hinweis("Es befindet sich keine passende Textdatei auf dem Datenträger");
  klicke("laden");
}

TEST_F(TWListengenerator, KeineAuswahlLässtDenTextStehen) {
  öffne();
  lade("Beispiel_Wabeneintrag.TKS");
  {
    const Dialogbesuch besuch("TS_Dateiauswahl", [](QWidget* dialog) { dialog->close(); });
    klicke("laden");
  }
  EXPECT_EQ(dateiname(), "Beispiel_Wabeneintrag.TKS");
}

TEST_F(TWListengenerator, EinFehlerBeimSichernLässtDenTextGeändertUndDasFensterOffen) {
  öffne();
  schreibe("wichtig");
  ASSERT_TRUE(QDir(AppPfad).mkdir("Ordner.TKS"));
  boxen.frage(SchließenFrage, true).hinweisMit("Ordner.TKS");
  {
    const Dialogbesuch besuch("TS_Dateispeichern", [&](QWidget* dialog) {
      tippe(dialog->findChild<QLineEdit*>("t"), "Ordner");
      klicke(dialog->findChild<QAbstractButton*>("ok"));
    });
    klicke("schließen");
  }
  EXPECT_TRUE(offen());
  EXPECT_EQ(dateiname(), "Neuer Text (geändert)");
}

TEST_F(TWListengenerator, BeimSchließenWirdNachEinemUngesichertenTextGefragt) {
  öffne();
  schreibe("eins");
  boxen.frage(SchließenFrage, true);
  speichereUnter("Eins", "schließen");
  EXPECT_FALSE(offen());
  EXPECT_EQ(datei("Eins.TKS"), "eins");
}

TEST_F(TWListengenerator, EinNichtGesicherterTextIstBeimNächstenÖffnenNochDa) {
  öffne();
  schreibe("eins");
  boxen.frage(SchließenFrage, false);
  QTest::keyClick(t(), Qt::Key_Escape);
  EXPECT_FALSE(offen());
  form->laden();
  form->show();
  EXPECT_EQ(text(), "eins");
  EXPECT_EQ(dateiname(), "Neuer Text (geändert)");
}

TEST_F(TWListengenerator, GeschütztesLeerzeichenUndZeilenwechselKommenSoInDieDatei) {
  öffne();
  t()->insertPlainText(QString("5") + QChar(QChar::Nbsp) + "kg");
  QTest::keyClick(t(), Qt::Key_Return, Qt::ShiftModifier);
  schreibe("x");
  speichereUnter("Leer");
  EXPECT_EQ(Textdatei::bytesLesen(AppPfad + "Leer.TKS").toHex(), "35a06b670d0a78");
}

// With TOVA_BILDER set to a folder the form is saved there as a picture.
class TWListengeneratorBild : public TWListengenerator, public testing::WithParamInterface<int> {
  const Schriftgröße m_schrift{GetParam()};
};

TEST_P(TWListengeneratorBild, PasstAufDenBildschirmUndJederKnopfIstLesbar) {
  öffne();
  bildAblegen(*form, QString("listengenerator_leer_%1").arg(GetParam()));
  lade("Beispiel_Gesamtinfos.TKS");
  passtAufKleinenSchirm(*form);
  for (const QSize größe : {QSize(1024, 700), QSize(1366, 728)}) {
    form->resize(größe);
    QTest::qWait(1);
    knöpfeSindLesbar(*form);
    bildAblegen(*form, QString("listengenerator_%1_%2").arg(größe.width()).arg(GetParam()));
  }
}

INSTANTIATE_TEST_SUITE_P(Schriftgrößen, TWListengeneratorBild, testing::Values(100, 150));

}  // namespace
