#include "platform/controls/Formular.h"

#include <gtest/gtest.h>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QTimer>
#include <QVBoxLayout>

#include "platform/controls/Dateidialoge.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Gestaltung.h"
#include "platform/controls/Hilfen.h"
#include "platform/controls/Meldungen.h"
#include "platform/database/werte/Datenbankfehler.h"
#include "platform/files/Textdatei.h"

namespace {

class TestFormular : public Formular {
 public:
  explicit TestFormular(QWidget* öffner = nullptr)
      : Formular(QStringLiteral("TE_Test"), QStringLiteral("Test"), öffner) {
    auto* lage = new QVBoxLayout(this);
    eingabe = new QLineEdit;
    schild = beschriften(QStringLiteral("&Menge (kg):"), eingabe);
    knopf = new QPushButton(QStringLiteral("&Los"));
    knopf->setAutoDefault(false);
    for (QWidget* teil : {static_cast<QWidget*>(schild), static_cast<QWidget*>(eingabe),
                          static_cast<QWidget*>(knopf)})
      lage->addWidget(teil);
  }
  QLabel* schild;
  QLineEdit* eingabe;
  QPushButton* knopf;
};

class FormularTest : public testing::Test {
 protected:
  FormularTest() { Fensterablage::setDatei(ordner.filePath(QStringLiteral("Fenster.ini"))); }
  ~FormularTest() override {
    Fensterablage::setDatei({});
    Formular::setHilfe({});
  }
  QTemporaryDir ordner;
};

}  // namespace

// Nobody else works on the folder: such a lock is a remainder, here of another computer.
TEST_F(FormularTest, EineLiegengebliebeneSperreHältDieAblageNichtAuf) {
  QFile sperre(ordner.filePath(QStringLiteral("Fenster.ini.lock")));
  ASSERT_TRUE(sperre.open(QIODevice::WriteOnly));
  sperre.write("1\ntova\nIMKER-PC\n");
  sperre.close();
  QElapsedTimer uhr;
  uhr.start();
  Fensterablage::schreiben(QStringLiteral("a"), 7);
  EXPECT_LT(uhr.elapsed(), 10000);
  EXPECT_EQ(Fensterablage::lesen(QStringLiteral("a")).toInt(), 7);
  EXPECT_FALSE(sperre.exists());
}

TEST_F(FormularTest, EinWeggenommenerOrdnerEntstehtNichtNeu) {
  const QString weg = ordner.filePath(QStringLiteral("weg"));
  Fensterablage::setDatei(weg + QStringLiteral("/Fenster.ini"));
  Fensterablage::schreiben(QStringLiteral("a"), 7);
  EXPECT_FALSE(QFileInfo::exists(weg));
  EXPECT_FALSE(Fensterablage::lesen(QStringLiteral("a")).isValid());
}

TEST_F(FormularTest, NameTitelUndKnöpfeDesFensters) {
  TestFormular form;
  EXPECT_EQ(form.objectName(), QStringLiteral("TE_Test"));
  EXPECT_EQ(form.windowTitle(), QStringLiteral("Test"));
  EXPECT_FALSE(form.windowFlags() & Qt::WindowContextHelpButtonHint);
  EXPECT_TRUE(form.windowFlags() & Qt::WindowMaximizeButtonHint);
}

TEST_F(FormularTest, BeschriftenNenntDieEingabe) {
  TestFormular form;
  EXPECT_EQ(form.schild->buddy(), form.eingabe);
  EXPECT_EQ(form.eingabe->accessibleName(), QStringLiteral("Menge (kg)"));
  QLineEdit andere;
  delete Formular::beschriften(QStringLiteral("Vor- && Nachname"), &andere);
  EXPECT_EQ(andere.accessibleName(), QStringLiteral("Vor- & Nachname"));
}

TEST_F(FormularTest, EscSchließtUndZeigenKehrtZurück) {
  TestFormular form;
  bool offen = false;
  imDialog([&](QWidget* dialog) {
    offen = dialog == &form && dialog->isModal();
    QTest::keyClick(form.eingabe, Qt::Key_Escape);
  });
  form.zeigen();
  EXPECT_TRUE(offen);
  EXPECT_FALSE(form.isVisible());
}

TEST_F(FormularTest, F1RuftDieHilfeDesFormulars) {
  QString thema;
  Formular::setHilfe([&](QWidget*, const QString& t) { thema = t; });
  TestFormular form;
  zeige(form);
  QTest::keyClick(form.eingabe, Qt::Key_F1);
  EXPECT_EQ(thema, QStringLiteral("TE_Test"));
}

TEST_F(FormularTest, GrößeUndOrtWerdenGemerkt) {
  QRect gemerkt;
  {
    TestFormular form;
    zeige(form);
    form.setGeometry(60, 70, 420, 310);
    gemerkt = form.geometry();
    form.close();
  }
  TestFormular form;
  zeige(form);
  EXPECT_EQ(form.geometry(), gemerkt);
}

TEST_F(FormularTest, NachDerZerstörungBleibtDerKnopfOhneFolgen) {
  // The window is deleted by its own action and the failure comes afterwards.
  auto* form = new TestFormular;
  QPointer<TestFormular> noch(form);
  zeige(*form);
  Meldungen::Probe probe;
  probe.hinweis(QStringLiteral("Zu spät."));
  const bool gut = Ereignis::ausführen(form, [form] {
    delete form;
    throw Dateifehler(QStringLiteral("Zu spät."));
  });
  EXPECT_FALSE(gut);
  EXPECT_TRUE(noch.isNull());
  EXPECT_EQ(probe.fehler(), QString());
}

TEST_F(FormularTest, FensterAußerhalbKommtAufDenSchirm) {
  {
    TestFormular form;
    zeige(form);
    form.setGeometry(5000, 4000, 420, 310);
    form.close();
  }
  TestFormular form;
  zeige(form);
  const QRect schirm = QGuiApplication::primaryScreen()->availableGeometry();
  EXPECT_TRUE(schirm.contains(form.frameGeometry()))
      << form.frameGeometry().x() << "," << form.frameGeometry().y();
}

TEST_F(FormularTest, ZuGroßesFensterWirdAufDenSchirmVerkleinert) {
  {
    TestFormular form;
    zeige(form);
    form.setGeometry(10, 10, 4000, 3000);
    form.close();
  }
  TestFormular form;
  zeige(form);
  const QRect schirm = QGuiApplication::primaryScreen()->availableGeometry();
  EXPECT_TRUE(schirm.contains(form.frameGeometry()));
}

TEST_F(FormularTest, AblageOhneDateiMerktNichts) {
  Fensterablage::setDatei({});
  Fensterablage::schreiben(QStringLiteral("a/b"), 5);
  EXPECT_FALSE(Fensterablage::lesen(QStringLiteral("a/b")).isValid());
}

TEST_F(FormularTest, AblageStehtSofortInDerDatei) {
  Fensterablage::schreiben(QStringLiteral("Fenster/TE_Größe"), 5);
  EXPECT_EQ(Fensterablage::lesen(QStringLiteral("Fenster/TE_Größe")).toInt(), 5);
  EXPECT_TRUE(QFile::exists(ordner.filePath(QStringLiteral("Fenster.ini"))));
}

// A file stands where the folder should be: not even the administrator can write there.
TEST_F(FormularTest, AblageInUnbeschreibbaremOrdnerStörtNicht) {
  QFile keinOrdner(ordner.filePath(QStringLiteral("belegt")));
  ASSERT_TRUE(keinOrdner.open(QFile::WriteOnly));
  const QString datei = keinOrdner.fileName() + QStringLiteral("/Fenster.ini");
  Fensterablage::setDatei(datei);
  EXPECT_NO_THROW(Fensterablage::schreiben(QStringLiteral("a"), 1));
  EXPECT_FALSE(QFile::exists(datei));
}

TEST(Ereignis, GibtTrueWennAllesGutGing) {
  bool gelaufen = false;
  EXPECT_TRUE(Ereignis::ausführen(nullptr, [&] { gelaufen = true; }));
  EXPECT_TRUE(gelaufen);
}

TEST(Ereignis, DatenbankfehlerZeigtSeinenText) {
  Meldungen::Probe probe;
  probe.hinweis(QStringLiteral("Die Tabelle fehlt."));
  EXPECT_FALSE(Ereignis::ausführen(nullptr, [] {
    throw Datenbankfehler(Datenbankfehler::Art::Anweisung, QStringLiteral("Die Tabelle fehlt."));
  }));
  EXPECT_EQ(probe.fehler(), QString());
}

// What a library says is English: the box says in German that the action has ended.
TEST(Ereignis, AndereAusnahmeWirdAufDeutschGemeldet) {
  Meldungen::Probe probe;
  probe.hinweis(
      QStringLiteral("Der Vorgang wurde wegen eines unerwarteten Fehlers abgebrochen. Bitte prüfen "
                     "Sie, was davon gespeichert ist, bevor Sie ihn wiederholen."));
  EXPECT_FALSE(Ereignis::ausführen(nullptr, [] { throw std::runtime_error("vector::at"); }));
  probe.hinweisMit(QStringLiteral("unbekannten Fehlers"));
  EXPECT_FALSE(Ereignis::ausführen(nullptr, [] { throw 5; }));
  EXPECT_EQ(probe.fehler(), QString());
}

TEST(Ereignis, WennVerbindetMitUndOhneWerte) {
  QWidget fenster;
  QPushButton knopf(&fenster);
  QLineEdit eingabe(&fenster);
  int klicks = 0;
  QString text;
  Ereignis::wenn(&knopf, &QPushButton::clicked, &fenster, [&] { ++klicks; });
  Ereignis::wenn(&eingabe, &QLineEdit::textChanged, &fenster,
                 [&](const QString& neu) { text = neu; });
  knopf.click();
  eingabe.setText(QStringLiteral("neu"));
  EXPECT_EQ(klicks, 1);
  EXPECT_EQ(text, QStringLiteral("neu"));
}

TEST(Ereignis, FehlerImKnopfMeldetUndDasProgrammGehtWeiter) {
  QWidget fenster;
  QPushButton knopf(&fenster);
  Ereignis::wenn(&knopf, &QPushButton::clicked, &fenster,
                 [] { throw Dateifehler(QStringLiteral("Die Datei fehlt.")); });
  Meldungen::Probe probe;
  probe.hinweis(QStringLiteral("Die Datei fehlt.")).hinweis(QStringLiteral("Die Datei fehlt."));
  knopf.click();
  knopf.click();
  EXPECT_EQ(probe.fehler(), QString());
}

TEST(Ereignis, SanduhrEndetAuchBeiFehlern) {
  Meldungen::Probe probe;
  probe.hinweisMit(QStringLiteral("x"));
  Ereignis::ausführen(nullptr, [] {
    const Ereignis::Sanduhr uhr;
    throw std::runtime_error("x");
  });
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

// A form whose default button is made before it stands in the form, as layouts are built.
class Vorgabeform : public Formular {
 public:
  Vorgabeform() : Formular(QStringLiteral("Vorgabeform"), QString(), nullptr) {
    neu = new QPushButton(QStringLiteral("Neu"));
    neu->setDefault(true);
    löschen = new QPushButton(QStringLiteral("Löschen"));
    feld = new QLineEdit;
    auto* spalte = new QVBoxLayout(this);
    for (QWidget* teil : std::initializer_list<QWidget*>{löschen, feld, neu})
      spalte->addWidget(teil);
    connect(neu, &QPushButton::clicked, this, [this] { ++gebucht; });
    connect(löschen, &QPushButton::clicked, this, [this] { ++gelöscht; });
  }
  QPushButton* neu;
  QPushButton* löschen;
  QLineEdit* feld;
  int gebucht = 0;
  int gelöscht = 0;
};

TEST(Formular, EnterDrücktDenVorgabeknopfAuchNachdemEinAndererGedrücktWurde) {
  Vorgabeform form;
  form.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
  QTest::mouseClick(form.löschen, Qt::LeftButton);
  form.löschen->setFocus();
  form.feld->setFocus();
  QTest::keyClick(form.feld, Qt::Key_Return);
  EXPECT_EQ(form.gelöscht, 1);
  EXPECT_EQ(form.gebucht, 1);
  form.close();
  form.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
  form.feld->setFocus();
  QTest::keyClick(form.feld, Qt::Key_Return);
  EXPECT_EQ(form.gebucht, 2);
}

TEST(Dateidialoge, ProbeGibtDieAntwortenDerReiheNach) {
  QTemporaryDir ordner;
  Dateidialoge::Probe probe;
  probe.antwort(QStringLiteral("/a.jpg"))
      .antwort(QStringLiteral("Speichern"), ordner.filePath(QStringLiteral("b")))
      .antwort(QString());
  EXPECT_EQ(Dateidialoge::öffnen(nullptr, QStringLiteral("Bild"), {}, {}),
            QStringLiteral("/a.jpg"));
  EXPECT_EQ(
      Dateidialoge::speichern(nullptr, QStringLiteral("Speichern"), {}, {}, QStringLiteral("txt")),
      ordner.filePath(QStringLiteral("b.txt")));
  EXPECT_EQ(Dateidialoge::ordnerWählen(nullptr, QStringLiteral("Ordner"), {}), QString());
  EXPECT_EQ(probe.fehler(), QString());
  Dateidialoge::öffnen(nullptr, QStringLiteral("Noch eins"), {}, {});
  EXPECT_EQ(probe.fehler(), QStringLiteral("Nicht erwartet: Dialog \"Noch eins\""));
}

TEST(Dateidialoge, VorhandeneDateiWirdErstNachFrageÜberschrieben) {
  QTemporaryDir ordner;
  const QString pfad = ordner.filePath(QStringLiteral("da.txt"));
  QFile datei(pfad);
  ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
  datei.close();
  Dateidialoge::Probe probe;
  Meldungen::Probe meldungen;
  probe.antwort(pfad).antwort(QString());
  meldungen.frageMit(QStringLiteral("da.txt gibt es schon"), false);
  EXPECT_EQ(Dateidialoge::speichern(nullptr, QStringLiteral("S"), pfad, {}), QString());
  probe.antwort(pfad);
  meldungen.frageMit(QStringLiteral("da.txt gibt es schon"), true);
  EXPECT_EQ(Dateidialoge::speichern(nullptr, QStringLiteral("S"), pfad, {}), pfad);
  EXPECT_EQ(probe.fehler(), QString());
  EXPECT_EQ(meldungen.fehler(), QString());
}

// The dialog itself, answered as the user does it.
TEST(Dateidialoge, DieEndungIstDieDesGewähltenFilters) {
  QTemporaryDir ordner;
  QTimer::singleShot(0, qApp, [] {
    QWidget* dialog = QApplication::activeModalWidget();
    ASSERT_NE(dialog, nullptr);
    auto* arten = dialog->findChild<QComboBox*>(QStringLiteral("fileTypeCombo"));
    ASSERT_NE(arten, nullptr);
    arten->setFocus();
    QTest::keyClick(arten, Qt::Key_Down);
    dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QStringLiteral("bild"));
    dialog->findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Save)->click();
  });
  EXPECT_EQ(Dateidialoge::speichern(nullptr, QStringLiteral("S"),
                                    ordner.filePath(QStringLiteral("vorschlag")),
                                    QStringLiteral("PNG-Bild (*.png);;SVG-Zeichnung (*.svg)")),
            ordner.filePath(QStringLiteral("bild.svg")));
}

TEST(Gestaltung, SchriftIstLesbarUndDieSpracheDeutsch) {
  EXPECT_GE(QApplication::font().pointSizeF(), 10.5);
  EXPECT_EQ(QLocale().language(), QLocale::German);
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "Cancel"), QStringLiteral("Abbrechen"));
  EXPECT_EQ(QCoreApplication::translate("QPlatformTheme", "&Yes"), QStringLiteral("&Ja"));
}

TEST(Gestaltung, TextHebtSichInBeidenFarbwelten) {
  for (const bool dunkel : {false, true}) {
    const QPalette p = Gestaltung::palette(dunkel);
    EXPECT_EQ(Gestaltung::istDunkel(p), dunkel);
    const auto abstand = [&p](QPalette::ColorRole a, QPalette::ColorRole b) {
      return std::abs(p.color(a).lightness() - p.color(b).lightness());
    };
    EXPECT_GT(abstand(QPalette::Text, QPalette::Base), 120);
    EXPECT_GT(abstand(QPalette::WindowText, QPalette::Window), 120);
    EXPECT_GT(abstand(QPalette::ButtonText, QPalette::Button), 120);
    EXPECT_GT(std::abs(Gestaltung::warnfarbe(p).lightness() - p.color(QPalette::Base).lightness()),
              70);
  }
}
