#include "platform/controls/Eingabefeld.h"

#include <gtest/gtest.h>

#include <QClipboard>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDropEvent>
#include <QListView>
#include <QMimeData>
#include <QPushButton>
#include <QSignalSpy>
#include <QToolButton>
#include <QVBoxLayout>

#include "platform/controls/Auswahlliste.h"
#include "platform/controls/Hilfen.h"
#include "platform/locale/Deutsch.h"

using Art = Eingabefeld::Art;

namespace {

// A window with the field under test, another field to go to and a default button.
class EingabefeldTest : public testing::Test {
 protected:
  EingabefeldTest() {
    auto* lage = new QVBoxLayout(&fenster);
    lage->addWidget(feld = new Eingabefeld);
    lage->addWidget(anderes = new Eingabefeld);
    lage->addWidget(ok = new QPushButton(QStringLiteral("&Speichern")));
    ok->setDefault(true);
    Eingabefeld::setHeute([] { return QDate(2024, 5, 17); });
    Eingabefeld::setSteuersätze([] { return std::pair<int, int>(19, 7); });
    // Shorthand of one or two digits is a day of May 2024; all else stays as it stands.
    Eingabefeld::setDatumErgaenzer([](const QString& text) {
      bool zahl = false;
      const int tag = text.toInt(&zahl);
      if (zahl && text.size() <= 2)
        return QStringLiteral("%1.05.2024").arg(tag, 2, 10, QChar(u'0'));
      return text;
    });
  }
  ~EingabefeldTest() override {
    Eingabefeld::setDatumErgaenzer({});
    Eingabefeld::setHeute({});
    Eingabefeld::setSteuersätze({});
  }

  void SetUp() override {
    zeige(fenster);
    feld->setFocus(Qt::OtherFocusReason);
  }

  void einrichten(const Eingabefeld::Beschreibung& b) { feld->einrichten(b); }
  void tippe(const char* text) { QTest::keyClicks(feld, QString::fromUtf8(text)); }
  void fügeEin(const QString& text) {
    QApplication::clipboard()->setText(text);
    QTest::keyClick(feld, Qt::Key_V, Qt::ControlModifier);
  }
  void verlasse() { QTest::keyClick(feld, Qt::Key_Tab); }
  Auswahlliste* liste() { return feld->findChild<Auswahlliste*>(); }
  bool listeOffen() { return liste() != nullptr && liste()->isVisible(); }

  QDialog fenster;
  Eingabefeld* feld;
  Eingabefeld* anderes;
  QPushButton* ok;
};

Eingabefeld::Beschreibung dezimal(int länge, int stellen, const QString& erster = {}) {
  return {Art::Dezimal, länge, stellen, {}, erster, {}, {}};
}

}  // namespace

TEST_F(EingabefeldTest, ErsterTextStehtNachDemEinrichten) {
  einrichten(dezimal(4, 1, QStringLiteral("0,0")));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("0,0"));
}

TEST_F(EingabefeldTest, TextHörtBeiDerLängeAuf) {
  einrichten({Art::Text, 5, 0, {}, {}, {}, {}});
  tippe("Bienenvolk");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("Biene"));
}

TEST_F(EingabefeldTest, DezimalNimmtNurZahlen) {
  einrichten(dezimal(8, 2));
  tippe("12,3x4");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("12,3"));
}

TEST_F(EingabefeldTest, PunktBleibtBeimTippenUndWirdBeimVerlassenKomma) {
  einrichten(dezimal(8, 2));
  tippe("12.5");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("12.5"));
  tippe(".");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("12.5"));
  verlasse();
  EXPECT_EQ(feld->inhalt(), QStringLiteral("12,5"));
}

TEST_F(EingabefeldTest, RückgängigGehtAuchÜberDenPunkt) {
  einrichten(dezimal(8, 2));
  tippe("12.5");
  QTest::keyClick(feld, Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(feld->inhalt(), QString());
}

TEST_F(EingabefeldTest, DritteNachkommastelleWirdNichtAngenommen) {
  einrichten(dezimal(8, 2));
  tippe("1,239");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("1,23"));
}

TEST_F(EingabefeldTest, KommaÜberDemKommaGehtWeiter) {
  einrichten(dezimal(8, 2, QStringLiteral("0,00")));
  feld->setCursorPosition(1);
  tippe(",");
  EXPECT_EQ(feld->cursorPosition(), 2);
  EXPECT_EQ(feld->inhalt(), QStringLiteral("0,00"));
}

TEST_F(EingabefeldTest, AbgelehntesZeichenMeldetKeineÄnderung) {
  einrichten(dezimal(8, 2));
  tippe("1");
  QSignalSpy spion(feld, &Eingabefeld::inhaltNeu);
  tippe("x");
  EXPECT_EQ(spion.count(), 0);
  QTest::keyClick(feld, Qt::Key_End);
  tippe("2");
  EXPECT_EQ(spion.count(), 1);
}

TEST_F(EingabefeldTest, EingefügteZahlVerliertDieTausenderpunkte) {
  einrichten(dezimal(8, 2));
  fügeEin(QStringLiteral("1.234,56"));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("1234,56"));
}

TEST_F(EingabefeldTest, EingefügteZahlErsetztDasMarkierte) {
  einrichten(dezimal(4, 1, QStringLiteral("0,0")));
  feld->selectAll();
  fügeEin(QStringLiteral("12.5"));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("12,5"));
}

TEST_F(EingabefeldTest, UnpassendesEinfügenLässtDenInhalt) {
  einrichten(dezimal(4, 1, QStringLiteral("0,0")));
  feld->selectAll();
  fügeEin(QStringLiteral("12345,6"));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("0,0"));
  fügeEin(QStringLiteral("viel"));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("0,0"));
}

TEST_F(EingabefeldTest, GanzzahlÜberDerGrenzeWirdNichtGetippt) {
  einrichten({Art::Ganzzahl, 3, 0, 100, {}, {}, {}});
  tippe("105");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("10"));
  QTest::keyClick(feld, Qt::Key_End);
  tippe("0");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("100"));
}

TEST_F(EingabefeldTest, GrößereGanzzahlWirdNichtEingefügt) {
  einrichten({Art::Ganzzahl, 3, 0, 100, QStringLiteral("7"), {}, {}});
  feld->selectAll();
  fügeEin(QStringLiteral("101"));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("7"));
  fügeEin(QStringLiteral(" 99 "));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("99"));
}

TEST_F(EingabefeldTest, EingefügteZeilenWerdenEineZeile) {
  einrichten({Art::Text, 30, 0, {}, {}, {}, {}});
  fügeEin(QStringLiteral("Zeile 1\r\nZeile 2\tEnde\n"));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("Zeile 1 Zeile 2 Ende "));
}

TEST_F(EingabefeldTest, ZehntausendEingefügteZeichenWerdenGekürzt) {
  einrichten({Art::Text, 30, 0, {}, {}, {}, {}});
  fügeEin(QString(10000, u'ü'));
  EXPECT_EQ(feld->inhalt(), QString(30, u'ü'));
}

TEST_F(EingabefeldTest, EmojiAmEndeWirdNichtHalbiert) {
  einrichten({Art::Text, 5, 0, {}, {}, {}, {}});
  fügeEin(QStringLiteral("abcd🐝"));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("abcd"));
  feld->clear();
  fügeEin(QStringLiteral("abc🐝"));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("abc🐝"));
}

TEST_F(EingabefeldTest, HineingezogenerTextHältDieRegeln) {
  einrichten({Art::Ganzzahl, 3, 0, 100, {}, {}, {}});
  const auto ziehe = [this](const QString& text) {
    QMimeData daten;
    daten.setText(text);
    QDragEnterEvent kommen(QPoint(5, 5), Qt::CopyAction, &daten, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(feld, &kommen);
    QDropEvent fallen(QPointF(5, 5), Qt::CopyAction, &daten, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(feld, &fallen);
  };
  ziehe(QStringLiteral("hundert"));
  EXPECT_EQ(feld->inhalt(), QString());
  ziehe(QStringLiteral("77"));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("77"));
}

TEST_F(EingabefeldTest, SetInhaltMeldetAuchDenselbenText) {
  einrichten({Art::Text, 10, 0, {}, QStringLiteral("a"), {}, {}});
  QSignalSpy spion(feld, &Eingabefeld::inhaltNeu);
  feld->setInhalt(QStringLiteral("a"));
  EXPECT_EQ(spion.count(), 1);
  feld->setInhalt(QStringLiteral("b"));
  EXPECT_EQ(spion.count(), 2);
}

TEST_F(EingabefeldTest, SetInhaltKürztAufDieLänge) {
  einrichten({Art::Text, 3, 0, {}, {}, {}, {}});
  feld->setInhalt(QStringLiteral("Honig"));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("Hon"));
}

TEST_F(EingabefeldTest, SetInhaltLässtZahlenAlleZiffern) {
  einrichten({Art::Ganzzahl, 2, 0, 99, {}, {}, {}});
  feld->setInhalt(QStringLiteral("120"));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("120"));
  feld->end(false);
  tippe("5");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("120"));
  einrichten(dezimal(5, 2));
  feld->setInhalt(QStringLiteral("1234,56"));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("1234,56"));
}

TEST_F(EingabefeldTest, AlterUnpassenderInhaltBleibtUndLässtSichLöschen) {
  einrichten(dezimal(6, 1));
  feld->setInhalt(QStringLiteral("-3,55"));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("-3,55"));
  feld->end(false);
  tippe("x");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("-3,55"));
  QTest::keyClick(feld, Qt::Key_Backspace);
  EXPECT_EQ(feld->inhalt(), QStringLiteral("-3,5"));
  feld->selectAll();
  tippe("4,5x");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("4,5"));
}

TEST_F(EingabefeldTest, DatumWirdBeimVerlassenErgänzt) {
  einrichten({Art::Datum, 0, 0, {}, {}, {}, {}});
  QSignalSpy verlassen(feld, &Eingabefeld::verlassen);
  QString beimVerlassen;
  QObject::connect(feld, &Eingabefeld::verlassen, feld, [&] { beimVerlassen = feld->inhalt(); });
  tippe("3");
  verlasse();
  EXPECT_EQ(feld->inhalt(), QStringLiteral("03.05.2024"));
  EXPECT_EQ(verlassen.count(), 1);
  EXPECT_EQ(beimVerlassen, QStringLiteral("03.05.2024"));
  EXPECT_FALSE(feld->hatWarnung());
}

TEST_F(EingabefeldTest, DatumKommaDesZiffernblocksWirdPunkt) {
  einrichten({Art::Datum, 0, 0, {}, {}, {}, {}});
  tippe("3,5.24");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("3.5.24"));
}

TEST_F(EingabefeldTest, UnmöglichesDatumBleibtWieGetipptUndWarnt) {
  einrichten({Art::Datum, 0, 0, {}, {}, {}, {}});
  tippe("31.02.2024");
  verlasse();
  EXPECT_EQ(feld->inhalt(), QStringLiteral("31.02.2024"));
  EXPECT_TRUE(feld->hatWarnung());
  EXPECT_NE(feld->palette().color(QPalette::Text), QApplication::palette().color(QPalette::Text));
  feld->setFocus();
  QTest::keyClick(feld, Qt::Key_Backspace);
  EXPECT_FALSE(feld->hatWarnung());
  EXPECT_EQ(feld->palette().color(QPalette::Text), QApplication::palette().color(QPalette::Text));
}

TEST_F(EingabefeldTest, LeeresDatumWarntNicht) {
  einrichten({Art::Datum, 0, 0, {}, {}, {}, {}});
  verlasse();
  EXPECT_FALSE(feld->hatWarnung());
}

TEST_F(EingabefeldTest, EnterErgänztVorDerVorgabetaste) {
  einrichten({Art::Datum, 0, 0, {}, {}, {}, {}});
  QString gelesen;
  QObject::connect(ok, &QPushButton::clicked, feld, [&] { gelesen = feld->inhalt(); });
  tippe("9");
  QTest::keyClick(feld, Qt::Key_Return);
  EXPECT_EQ(gelesen, QStringLiteral("09.05.2024"));
}

TEST_F(EingabefeldTest, AltBuchstabeErgänztVorDemKnopf) {
  einrichten({Art::Datum, 0, 0, {}, {}, {}, {}});
  QString gelesen;
  QObject::connect(ok, &QPushButton::clicked, feld, [&] { gelesen = feld->inhalt(); });
  tippe("9");
  QTest::keyClick(feld, Qt::Key_S, Qt::AltModifier);
  QTRY_COMPARE(gelesen, QStringLiteral("09.05.2024"));
}

TEST_F(EingabefeldTest, TagMonatWirdErgänzt) {
  einrichten({Art::TagMonat, 0, 0, {}, {}, {}, {}});
  tippe("1.5");
  verlasse();
  EXPECT_EQ(feld->inhalt(), QStringLiteral("01.05"));
  feld->setInhalt(QStringLiteral("31.2"));
  EXPECT_TRUE(feld->hatWarnung());
}

TEST_F(EingabefeldTest, TabMarkiertDenText) {
  anderes->einrichten({Art::Text, 10, 0, {}, QStringLiteral("Linde"), {}, {}});
  verlasse();
  EXPECT_TRUE(anderes->hasFocus());
  EXPECT_EQ(anderes->selectedText(), QStringLiteral("Linde"));
}

TEST_F(EingabefeldTest, AuswahlNimmtDenAnfangsbuchstaben) {
  einrichten({Art::Auswahl,
              0,
              0,
              {},
              QStringLiteral("J"),
              {},
              {QStringLiteral("J"), QStringLiteral("N")}});
  QSignalSpy spion(feld, &Eingabefeld::ausListeGenommen);
  tippe("n");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("N"));
  EXPECT_EQ(spion.count(), 1);
  tippe("x7");
  QTest::keyClick(feld, Qt::Key_Backspace);
  QTest::keyClick(feld, Qt::Key_Delete);
  EXPECT_EQ(feld->inhalt(), QStringLiteral("N"));
  fügeEin(QStringLiteral("vielleicht"));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("N"));
}

TEST_F(EingabefeldTest, AuswahlGleicherBuchstabeGehtWeiter) {
  einrichten(
      {Art::Auswahl,
       0,
       0,
       {},
       {},
       {},
       {QStringLiteral("Dadant"), QStringLiteral("Deutsch-Normal"), QStringLiteral("Zander")}});
  tippe("d");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("Dadant"));
  tippe("d");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("Deutsch-Normal"));
  tippe("d");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("Dadant"));
}

TEST_F(EingabefeldTest, UntenÖffnetDieAuswahlUndEnterNimmt) {
  einrichten({Art::Auswahl,
              0,
              0,
              {},
              QStringLiteral("J"),
              {},
              {QStringLiteral("J"), QStringLiteral("N")}});
  QSignalSpy geklickt(ok, &QPushButton::clicked);
  QTest::keyClick(feld, Qt::Key_Down);
  ASSERT_TRUE(listeOffen());
  EXPECT_EQ(liste()->markiert(), QStringLiteral("J"));
  QTest::keyClick(feld, Qt::Key_Down);
  QTest::keyClick(feld, Qt::Key_Return);
  EXPECT_EQ(feld->inhalt(), QStringLiteral("N"));
  EXPECT_FALSE(listeOffen());
  EXPECT_EQ(geklickt.count(), 0);
}

TEST_F(EingabefeldTest, ListeÖffnetMitF4UndAltUnten) {
  einrichten({Art::Text, 20, 0, {}, {}, {}, {}});
  feld->setListe({QStringLiteral("Linde"), QStringLiteral("Raps")});
  QTest::keyClick(feld, Qt::Key_F4);
  EXPECT_TRUE(listeOffen());
  QTest::keyClick(feld, Qt::Key_F4);
  EXPECT_FALSE(listeOffen());
  QTest::keyClick(feld, Qt::Key_Down, Qt::AltModifier);
  EXPECT_TRUE(listeOffen());
  QTest::keyClick(feld, Qt::Key_Escape);
  EXPECT_FALSE(listeOffen());
  EXPECT_TRUE(fenster.isVisible()) << "Esc schließt zuerst die Liste";
  QTest::keyClick(feld, Qt::Key_Escape);
  EXPECT_FALSE(fenster.isVisible());
}

TEST_F(EingabefeldTest, KnopfÖffnetUndSchließtDieListe) {
  einrichten({Art::Text, 20, 0, {}, {}, {}, {}});
  EXPECT_EQ(feld->findChild<QToolButton*>(), nullptr);
  feld->setListe({QStringLiteral("Linde"), QStringLiteral("Raps")});
  auto* knopf = feld->findChild<QToolButton*>();
  ASSERT_NE(knopf, nullptr);
  anderes->setFocus();
  QTest::mouseClick(knopf, Qt::LeftButton);
  EXPECT_TRUE(listeOffen());
  EXPECT_TRUE(feld->hasFocus());
  QTest::mouseClick(knopf, Qt::LeftButton);
  EXPECT_FALSE(listeOffen());
}

TEST_F(EingabefeldTest, KlickInDieListeWählt) {
  einrichten({Art::Text, 20, 0, {}, {}, {}, {}});
  feld->setListe({QStringLiteral("Linde"), QStringLiteral("Raps")});
  QSignalSpy spion(feld, &Eingabefeld::ausListeGenommen);
  QTest::keyClick(feld, Qt::Key_F4);
  ASSERT_TRUE(listeOffen());
  QListView* sicht = liste()->liste();
  const QModelIndex raps = sicht->model()->index(1, 0);
  QTest::mouseClick(sicht->viewport(), Qt::LeftButton, {}, sicht->visualRect(raps).center());
  EXPECT_EQ(feld->inhalt(), QStringLiteral("Raps"));
  ASSERT_EQ(spion.count(), 1);
  EXPECT_EQ(spion.first().first().toString(), QStringLiteral("Raps"));
}

TEST_F(EingabefeldTest, KlickWoandershinSchließtDieListe) {
  einrichten({Art::Text, 20, 0, {}, {}, {}, {}});
  feld->setListe({QStringLiteral("Linde"), QStringLiteral("Raps")});
  QTest::keyClick(feld, Qt::Key_F4);
  QTest::mouseClick(&fenster, Qt::LeftButton, {}, QPoint(2, 2));
  EXPECT_FALSE(listeOffen());
}

TEST_F(EingabefeldTest, TippenBietetPassendeAn) {
  einrichten({Art::Text, 20, 0, {}, {}, {}, {}});
  feld->setListe({QStringLiteral("Akazie"), QStringLiteral("Linde"), QStringLiteral("Löwenzahn")});
  tippe("l");
  ASSERT_TRUE(listeOffen());
  EXPECT_EQ(liste()->texte(), QStringList({QStringLiteral("Linde"), QStringLiteral("Löwenzahn")}));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("l")) << "nichts wird von selbst eingesetzt";
  QTest::sendKeyEvent(QTest::Click, feld, Qt::Key_Odiaeresis, QStringLiteral("ö"), Qt::NoModifier);
  EXPECT_EQ(liste()->texte(), QStringList({QStringLiteral("Löwenzahn")}));
  tippe("x");
  EXPECT_FALSE(listeOffen());
  EXPECT_EQ(feld->inhalt(), QStringLiteral("löx"));
}

TEST_F(EingabefeldTest, EnterNimmtDenEinzigenVorschlagVorDerVorgabetaste) {
  einrichten({Art::Text, 20, 0, {}, {}, {}, {}});
  feld->setListe({QStringLiteral("Linde")});
  QSignalSpy geklickt(ok, &QPushButton::clicked);
  tippe("li");
  ASSERT_TRUE(listeOffen());
  QTest::keyClick(feld, Qt::Key_Return);
  EXPECT_EQ(geklickt.count(), 1);
  EXPECT_EQ(feld->inhalt(), QStringLiteral("Linde"));
}

TEST_F(EingabefeldTest, UntenInDerErgänzungWählt) {
  einrichten({Art::Text, 20, 0, {}, {}, {}, {}});
  feld->setListe({QStringLiteral("Linde"), QStringLiteral("Löwenzahn")});
  QSignalSpy spion(feld, &Eingabefeld::ausListeGenommen);
  tippe("l");
  QTest::keyClick(feld, Qt::Key_Down);
  QTest::keyClick(feld, Qt::Key_Down);
  QTest::keyClick(feld, Qt::Key_Return);
  EXPECT_EQ(feld->inhalt(), QStringLiteral("Löwenzahn"));
  EXPECT_EQ(spion.count(), 1);
}

TEST_F(EingabefeldTest, VerlassenSchließtDieListe) {
  einrichten({Art::Text, 20, 0, {}, {}, {}, {}});
  feld->setListe({QStringLiteral("Linde"), QStringLiteral("Löwenzahn")});
  tippe("l");
  ASSERT_TRUE(listeOffen());
  verlasse();
  EXPECT_FALSE(listeOffen());
  EXPECT_EQ(feld->inhalt(), QStringLiteral("l"));
}

TEST_F(EingabefeldTest, FünftausendEinträgeStehenAlleInDerListe) {
  einrichten({Art::Text, 40, 0, {}, {}, {}, {}});
  QStringList texte;
  for (int i = 0; i < 5000; ++i) texte += QStringLiteral("Bemerkung %1").arg(i);
  feld->setListe(texte);
  feld->setInhalt(QStringLiteral("Bemerkung 4321"));
  QTest::keyClick(feld, Qt::Key_F4);
  ASSERT_TRUE(listeOffen());
  EXPECT_EQ(liste()->texte().size(), 5000);
  EXPECT_EQ(liste()->markiert(), QStringLiteral("Bemerkung 4321"));
}

TEST_F(EingabefeldTest, NeuesEinrichtenVergisstDieListe) {
  einrichten({Art::Text, 20, 0, {}, {}, {}, {}});
  feld->setListe({QStringLiteral("Linde")});
  einrichten({Art::Text, 20, 0, {}, {}, {}, {}});
  EXPECT_TRUE(feld->liste().isEmpty());
  QTest::keyClick(feld, Qt::Key_F4);
  EXPECT_FALSE(listeOffen());
}

TEST_F(EingabefeldTest, SchreibgeschütztesFeldÖffnetNichts) {
  einrichten({Art::Text, 20, 0, {}, {}, {}, {}});
  feld->setListe({QStringLiteral("Linde")});
  feld->setReadOnly(true);
  QTest::keyClick(feld, Qt::Key_F4);
  EXPECT_FALSE(listeOffen());
  einrichten({Art::Auswahl,
              0,
              0,
              {},
              QStringLiteral("J"),
              {},
              {QStringLiteral("J"), QStringLiteral("N")}});
  tippe("n");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("J"));
}

// ---- which key finds what in a choice ----

TEST_F(EingabefeldTest, AuswahlNimmtDasGanzeWort) {
  einrichten({Art::Auswahl,
              0,
              0,
              {},
              QStringLiteral("Ernte"),
              {},
              {QStringLiteral("Ableger"), QStringLiteral("Behandlung"), QStringLiteral("Dadant"),
               QStringLiteral("Ernte"), QStringLiteral("Höhe"), QStringLiteral("Notiz")}});
  tippe("Behandlung");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("Behandlung"));
  tippe("en");  // "Behandlungen" is no text of the choice
  EXPECT_EQ(feld->inhalt(), QStringLiteral("Behandlung"));
  EXPECT_EQ(feld->hinweis(), QStringLiteral("nur aus der Liste"));
}

TEST_F(EingabefeldTest, AuswahlJNNimmtJedenBuchstabenFürSich) {
  einrichten({Art::Auswahl,
              0,
              0,
              {},
              QStringLiteral("J"),
              {},
              {QStringLiteral("J"), QStringLiteral("N")}});
  tippe("nj");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("J"));
}

TEST_F(EingabefeldTest, EinheitLässtDemTextPlatz) {
  einrichten({Art::Dezimal, 8, 2, {}, {}, QStringLiteral("€"), {}});
  EXPECT_GE(feld->textMargins().right(), feld->fontMetrics().horizontalAdvance(u'€'));
  einrichten(dezimal(8, 2));
  EXPECT_EQ(feld->textMargins().right(), 0);
}

// ---- focus ----

TEST_F(EingabefeldTest, FokusVomProgrammMarkiertAuchImFeldMitFokus) {
  einrichten({Art::Datum, 10, 0, {}, QStringLiteral("15.06.2026"), {}, {}});
  feld->end(false);
  ASSERT_TRUE(feld->hasFocus());
  feld->fokussieren();
  EXPECT_EQ(feld->selectedText(), QStringLiteral("15.06.2026"));
  anderes->setFocus();
  feld->fokussieren();
  EXPECT_EQ(feld->selectedText(), QStringLiteral("15.06.2026"));
  tippe("9");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("9"));
}

TEST_F(EingabefeldTest, ErsterKlickMarkiertAlles) {
  einrichten(dezimal(8, 2, QStringLiteral("0,00")));
  for (const int x : {8, feld->width() - 45}) {
    feld->setInhalt(QStringLiteral("0,00"));
    anderes->setFocus();
    QTest::mouseClick(feld, Qt::LeftButton, {}, QPoint(x, feld->height() / 2));
    EXPECT_EQ(feld->selectedText(), QStringLiteral("0,00"));
    tippe("12,5");
    EXPECT_EQ(feld->inhalt(), QStringLiteral("12,5"));
  }
}

TEST_F(EingabefeldTest, ZweiterKlickSetztDieStelle) {
  einrichten(dezimal(8, 2, QStringLiteral("0,00")));
  anderes->setFocus();
  QTest::mouseClick(feld, Qt::LeftButton, {}, QPoint(8, feld->height() / 2));
  QTest::mouseClick(feld, Qt::LeftButton, {}, QPoint(8, feld->height() / 2));
  EXPECT_FALSE(feld->hasSelectedText());
}

TEST_F(EingabefeldTest, MarkiertesBleibtMarkiertWennDasProgrammEtwasEinsetzt) {
  einrichten({Art::Text, 20, 0, {}, QStringLiteral("Linde"), {}, {}});
  feld->fokussieren();
  feld->setInhalt(QStringLiteral("Raps"));
  EXPECT_EQ(feld->selectedText(), QStringLiteral("Raps"));
}

// ---- typed numbers ----

TEST_F(EingabefeldTest, GetippteTausenderpunkteSindKeinKomma) {
  einrichten(dezimal(8, 2));
  tippe("1.234,56");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("1.234,56"));
  verlasse();
  EXPECT_EQ(feld->inhalt(), QStringLiteral("1234,56"));
}

TEST_F(EingabefeldTest, DreiStellenHinterEinemPunktBleibenNachkommastellen) {
  einrichten(dezimal(8, 2));
  tippe("1.239");
  verlasse();
  EXPECT_EQ(feld->inhalt(), QStringLiteral("1,239"));
  EXPECT_EQ(feld->hinweis(), QStringLiteral("höchstens 2 Stellen nach dem Komma"));
}

TEST_F(EingabefeldTest, DerRechnerLiestTausenderpunkte) {
  einrichten(dezimal(8, 2));
  tippe("1.234,5");
  QTest::keyClick(feld, Qt::Key_F4);
  QWidget* rechner = QApplication::activePopupWidget();
  ASSERT_NE(rechner, nullptr);
  QTest::keyClick(rechner, Qt::Key_Return);
  EXPECT_EQ(feld->inhalt(), QStringLiteral("1234,50"));
}

// ---- refused keys ----

TEST_F(EingabefeldTest, AbgelehnteTasteMachtKeineAndereZahl) {
  einrichten({Art::Ganzzahl, 4, 0, 9999, {}, {}, {}});
  tippe("17,5");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("17"));
  EXPECT_EQ(feld->hinweis(), QStringLiteral("nur ganze Zahlen"));
  EXPECT_EQ(feld->accessibleDescription(), QStringLiteral("nur ganze Zahlen"));
  QTest::keyClick(feld, Qt::Key_Backspace);
  EXPECT_EQ(feld->hinweis(), QString());
  EXPECT_EQ(feld->accessibleDescription(), QString());
  tippe("8");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("18"));
}

TEST_F(EingabefeldTest, NachAbgelehntemVorzeichenKommtKeineZahlOhneVorzeichen) {
  einrichten(dezimal(8, 2, QStringLiteral("0,00")));
  feld->fokussieren();
  tippe("-5");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("0,00"));
  EXPECT_EQ(feld->hinweis(), QStringLiteral("nur Zahlen ohne Vorzeichen"));
  feld->fokussieren();
  tippe("5");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("5"));
}

TEST_F(EingabefeldTest, NachAbgelehnterTasteNimmtAuchEinfügenNichts) {
  einrichten({Art::Ganzzahl, 4, 0, 9999, {}, {}, {}});
  tippe("17,");
  fügeEin(QStringLiteral("5"));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("17"));
  QTest::keyClick(feld, Qt::Key_A, Qt::ControlModifier);
  fügeEin(QStringLiteral("5"));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("5"));
}

TEST_F(EingabefeldTest, WerWeitergehtUndZurückkommtTipptWieder) {
  einrichten({Art::Ganzzahl, 4, 0, 9999, {}, {}, {}});
  tippe("17,5");
  verlasse();
  EXPECT_EQ(feld->hinweis(), QStringLiteral("nur ganze Zahlen")) << "bleibt noch zu lesen";
  QTest::mouseClick(feld, Qt::LeftButton);
  tippe("18");
  EXPECT_EQ(feld->inhalt(), QStringLiteral("18"));
}

TEST_F(EingabefeldTest, HinweiseInWorten) {
  const auto hinweis = [this](const Eingabefeld::Beschreibung& b, const char* tasten) {
    einrichten(b);
    tippe(tasten);
    return feld->hinweis();
  };
  EXPECT_EQ(hinweis(dezimal(8, 2), "1,234"), QStringLiteral("höchstens 2 Stellen nach dem Komma"));
  EXPECT_EQ(hinweis(dezimal(4, 1), "1,23"), QStringLiteral("höchstens 1 Stelle nach dem Komma"));
  EXPECT_EQ(hinweis(dezimal(4, 1), "12345"), QStringLiteral("höchstens 4 Zeichen"));
  EXPECT_EQ(hinweis(dezimal(8, 2), "1,2,"), QStringLiteral("nur ein Komma"));
  EXPECT_EQ(hinweis(dezimal(8, 2), "1x"), QStringLiteral("nur Zahlen"));
  EXPECT_EQ(hinweis({Art::Ganzzahl, 4, 0, 9999, {}, {}, {}}, "12345"),
            QStringLiteral("höchstens 9999"));
  EXPECT_EQ(hinweis({Art::Text, 5, 0, {}, {}, {}, {}}, "Bienen"),
            QStringLiteral("höchstens 5 Zeichen"));
  EXPECT_EQ(hinweis({Art::Datum, 0, 0, {}, {}, {}, {}}, "3/5"),
            QStringLiteral("nur Ziffern und Punkte"));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("3"));
}

TEST_F(EingabefeldTest, GekürztesEinfügenSagtWarum) {
  einrichten({Art::Text, 5, 0, {}, {}, {}, {}});
  fügeEin(QStringLiteral("Bienenvolk"));
  EXPECT_EQ(feld->inhalt(), QStringLiteral("Biene"));
  EXPECT_EQ(feld->hinweis(), QStringLiteral("höchstens 5 Zeichen"));
}

// ---- what leaving means ----

TEST_F(EingabefeldTest, EnterUndKürzelVerlassenDasFeldVorDerTaste) {
  for (const bool mitAlt : {false, true}) {
    einrichten(dezimal(8, 2));
    QStringList folge;
    const auto a = QObject::connect(feld, &Eingabefeld::verlassen, feld,
                                    [&] { folge << "verlassen " + feld->inhalt(); });
    const auto b = QObject::connect(ok, &QPushButton::clicked, feld, [&] { folge << "taste"; });
    feld->fokussieren();
    tippe("1.5");
    QTest::keyClick(feld, mitAlt ? Qt::Key_S : Qt::Key_Return,
                    mitAlt ? Qt::AltModifier : Qt::NoModifier);
    QTRY_COMPARE(folge.size(), 2);
    EXPECT_EQ(folge, QStringList({"verlassen 1,5", "taste"}));
    QObject::disconnect(a);
    QObject::disconnect(b);
  }
}

TEST_F(EingabefeldTest, TabNimmtDenEinzigenVorschlag) {
  einrichten({Art::Text, 20, 0, {}, {}, {}, {}});
  feld->setListe({QStringLiteral("Lindenhonig"), QStringLiteral("Raps")});
  QSignalSpy spion(feld, &Eingabefeld::ausListeGenommen);
  tippe("lin");
  verlasse();
  EXPECT_EQ(feld->inhalt(), QStringLiteral("Lindenhonig"));
  EXPECT_EQ(spion.count(), 1);
  EXPECT_TRUE(anderes->hasFocus());
}

TEST_F(EingabefeldTest, TabNimmtDenMarkiertenVorschlag) {
  einrichten({Art::Text, 20, 0, {}, {}, {}, {}});
  feld->setListe({QStringLiteral("Linde"), QStringLiteral("Löwenzahn")});
  tippe("l");
  QTest::keyClick(feld, Qt::Key_Down);
  QTest::keyClick(feld, Qt::Key_Down);
  verlasse();
  EXPECT_EQ(feld->inhalt(), QStringLiteral("Löwenzahn"));
}

TEST_F(EingabefeldTest, EscLässtDasGetippte) {
  einrichten({Art::Text, 20, 0, {}, {}, {}, {}});
  feld->setListe({QStringLiteral("Lindenhonig")});
  tippe("Lin");
  QTest::keyClick(feld, Qt::Key_Escape);
  verlasse();
  EXPECT_EQ(feld->inhalt(), QStringLiteral("Lin"));
  EXPECT_TRUE(fenster.isVisible());
}

TEST_F(EingabefeldTest, GetippterTextDerAndereBeginntBleibt) {
  einrichten({Art::Text, 20, 0, {}, {}, {}, {}});
  feld->setListe({QStringLiteral("Raps"), QStringLiteral("Rapshonig")});
  tippe("Raps");
  verlasse();
  EXPECT_EQ(feld->inhalt(), QStringLiteral("Raps"));
}

TEST_F(EingabefeldTest, DerGanzeTextInAnderenBuchstabenBleibt) {
  einrichten({Art::Text, 20, 0, {}, {}, {}, {}});
  feld->setListe({QStringLiteral("Raps")});
  tippe("RAPS");
  verlasse();
  EXPECT_EQ(feld->inhalt(), QStringLiteral("RAPS"));
}

TEST_F(EingabefeldTest, AuchDieMausLässtKeinenHalbenVorschlag) {
  einrichten({Art::Text, 20, 0, {}, {}, {}, {}});
  feld->setListe({QStringLiteral("Lindenhonig")});
  tippe("Lin");
  QTest::mouseClick(anderes, Qt::LeftButton);
  EXPECT_EQ(feld->inhalt(), QStringLiteral("Lindenhonig"));
}
