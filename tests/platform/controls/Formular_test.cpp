#include "platform/controls/Formular.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTemporaryDir>
#include <QVBoxLayout>

#include "platform/controls/Dateidialoge.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Gestaltung.h"
#include "platform/controls/Hilfen.h"
#include "platform/controls/Meldungen.h"
#include "platform/database/Datenbankfehler.h"
#include "platform/files/Textdatei.h"

namespace {

class TestFormular : public Formular {
 public:
  explicit TestFormular(QWidget* oeffner = nullptr)
      : Formular(QStringLiteral("TE_Test"), QStringLiteral("Test"), oeffner) {
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

TEST_F(FormularTest, NameTitelUndKnoepfeDesFensters) {
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

TEST_F(FormularTest, EscSchliesstUndZeigenKehrtZurueck) {
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

TEST_F(FormularTest, GroesseUndOrtWerdenGemerkt) {
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

TEST_F(FormularTest, NachDerZerstoerungBleibtDerKnopfOhneFolgen) {
  // The window is deleted by its own action and the failure comes afterwards.
  auto* form = new TestFormular;
  QPointer<TestFormular> noch(form);
  zeige(*form);
  Meldungen::Probe probe;
  probe.hinweis(QStringLiteral("Zu spät."));
  const bool gut = Ereignis::ausfuehren(form, [form] {
    delete form;
    throw Dateifehler(QStringLiteral("Zu spät."));
  });
  EXPECT_FALSE(gut);
  EXPECT_TRUE(noch.isNull());
  EXPECT_EQ(probe.fehler(), QString());
}

TEST_F(FormularTest, FensterAusserhalbKommtAufDenSchirm) {
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

TEST_F(FormularTest, ZuGrossesFensterWirdAufDenSchirmVerkleinert) {
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
TEST_F(FormularTest, AblageInUnbeschreibbaremOrdnerStoertNicht) {
  QFile keinOrdner(ordner.filePath(QStringLiteral("belegt")));
  ASSERT_TRUE(keinOrdner.open(QFile::WriteOnly));
  const QString datei = keinOrdner.fileName() + QStringLiteral("/Fenster.ini");
  Fensterablage::setDatei(datei);
  EXPECT_NO_THROW(Fensterablage::schreiben(QStringLiteral("a"), 1));
  EXPECT_FALSE(QFile::exists(datei));
}

TEST(Ereignis, GibtTrueWennAllesGutGing) {
  bool gelaufen = false;
  EXPECT_TRUE(Ereignis::ausfuehren(nullptr, [&] { gelaufen = true; }));
  EXPECT_TRUE(gelaufen);
}

TEST(Ereignis, DatenbankfehlerZeigtSeinenText) {
  Meldungen::Probe probe;
  probe.hinweis(QStringLiteral("Die Tabelle fehlt."));
  EXPECT_FALSE(Ereignis::ausfuehren(nullptr, [] {
    throw Datenbankfehler(Datenbankfehler::Art::Anweisung, QStringLiteral("Die Tabelle fehlt."));
  }));
  EXPECT_EQ(probe.fehler(), QString());
}

TEST(Ereignis, AndereAusnahmeZeigtIhrenText) {
  Meldungen::Probe probe;
  probe.hinweisMit(QStringLiteral("etwas Böses"));
  EXPECT_FALSE(Ereignis::ausfuehren(nullptr, [] { throw std::runtime_error("etwas Böses"); }));
  probe.hinweisMit(QStringLiteral("unbekannten Fehlers"));
  EXPECT_FALSE(Ereignis::ausfuehren(nullptr, [] { throw 5; }));
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
  Ereignis::ausfuehren(nullptr, [] {
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
    loeschen = new QPushButton(QStringLiteral("Löschen"));
    feld = new QLineEdit;
    auto* spalte = new QVBoxLayout(this);
    for (QWidget* teil : std::initializer_list<QWidget*>{loeschen, feld, neu})
      spalte->addWidget(teil);
    connect(neu, &QPushButton::clicked, this, [this] { ++gebucht; });
    connect(loeschen, &QPushButton::clicked, this, [this] { ++geloescht; });
  }
  QPushButton* neu;
  QPushButton* loeschen;
  QLineEdit* feld;
  int gebucht = 0;
  int geloescht = 0;
};

TEST(Formular, EnterDruecktDenVorgabeknopfAuchNachdemEinAndererGedruecktWurde) {
  Vorgabeform form;
  form.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&form));
  QTest::mouseClick(form.loeschen, Qt::LeftButton);
  form.loeschen->setFocus();
  form.feld->setFocus();
  QTest::keyClick(form.feld, Qt::Key_Return);
  EXPECT_EQ(form.geloescht, 1);
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
  EXPECT_EQ(Dateidialoge::oeffnen(nullptr, QStringLiteral("Bild"), {}, {}),
            QStringLiteral("/a.jpg"));
  EXPECT_EQ(
      Dateidialoge::speichern(nullptr, QStringLiteral("Speichern"), {}, {}, QStringLiteral("txt")),
      ordner.filePath(QStringLiteral("b.txt")));
  EXPECT_EQ(Dateidialoge::ordnerWaehlen(nullptr, QStringLiteral("Ordner"), {}), QString());
  EXPECT_EQ(probe.fehler(), QString());
  Dateidialoge::oeffnen(nullptr, QStringLiteral("Noch eins"), {}, {});
  EXPECT_EQ(probe.fehler(), QStringLiteral("Nicht erwartet: Dialog \"Noch eins\""));
}

TEST(Dateidialoge, VorhandeneDateiWirdErstNachFrageUeberschrieben) {
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
