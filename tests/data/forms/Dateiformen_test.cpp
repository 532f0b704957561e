#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "data/forms/TS_Dateiauswahl.h"
#include "data/forms/TS_Dateispeichern.h"
#include "data/forms/helpers_forms.h"
#include "gemeinsam/Programmordner.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Meldungen.h"
#include "platform/files/Ton.h"

using namespace TZ_Variablen;

namespace {

class Formen : public testing::Test {
 protected:
  void TearDown() override { Ton::setSpieler({}); }

  void leg(const QStringList& namen) const {
    for (const QString& name : namen) {
      QFile datei(AppPfad + name);
      ASSERT_TRUE(datei.open(QIODevice::WriteOnly));
    }
  }
  QString muster() const { return AppPfad + QStringLiteral("*.TKS"); }

  // Does something to the form as soon as it is open.
  static void wennOffen(const QString& name, const std::function<void(QWidget*)>& tun) {
    QTimer::singleShot(0, qApp, [name, tun] {
      QWidget* fenster = QApplication::activeModalWidget();
      ASSERT_NE(fenster, nullptr);
      ASSERT_EQ(fenster->objectName(), name);
      tun(fenster);
    });
  }
  static QPushButton* knopf(QWidget* fenster, const char* name) {
    return fenster->findChild<QPushButton*>(QString::fromLatin1(name));
  }
  static void klick(QWidget* fenster, const char* name) {
    ASSERT_NE(knopf(fenster, name), nullptr) << name;
    QTest::mouseClick(knopf(fenster, name), Qt::LeftButton);
  }
  static QListWidget* liste(QWidget* fenster) {
    return fenster->findChild<QListWidget*>(QStringLiteral("Datei1"));
  }
  static Eingabefeld* feld(QWidget* fenster) {
    return fenster->findChild<Eingabefeld*>(QStringLiteral("t"));
  }

  Programmordner m_ordner{"20.06.2026"};
};

TEST_F(Formen, LöschenFragtMitJaUndNein) {
  EinstellungenZahl[Zahlslots.löschabfrage] = 1;
  const QString frage =
      QStringLiteral("Soll der markierte Datensatz wirklich unwiederbringlich gelöscht werden?");
  Meldungen::Probe probe;
  probe.frage(frage, true);
  EXPECT_TRUE(LoeschenBestaetigt());
  probe.frage(frage, false);
  EXPECT_FALSE(LoeschenBestaetigt());
  EXPECT_EQ(probe.fehler().toStdString(), "");
}

TEST_F(Formen, LöschenOhneFrageBeimErstenKlick) {
  Meldungen::Probe probe;
  for (const int wert : {0, 2, -1}) {
    EinstellungenZahl[Zahlslots.löschabfrage] = static_cast<qint16>(wert);
    EXPECT_TRUE(LoeschenBestaetigt());
  }
  EXPECT_EQ(probe.fehler().toStdString(), "");
}

TEST_F(Formen, TastentonNurMitPlatzVierzehn) {
  QStringList töne;
  Ton::setSpieler(
      [&](int hertz, int dauer) { töne += QStringLiteral("%1/%2").arg(hertz).arg(dauer); });
  EinstellungenZahl[Zahlslots.piepton] = 1;  // the box of the settings form isn't joined to it
  Tastenton();
  EXPECT_EQ(töne, QStringList());
  EinstellungenZahl[Zahlslots.tastenton] = 1;
  Tastenton();
  EXPECT_EQ(töne, QStringList{QStringLiteral("1000/15")});
}

TEST_F(Formen, KeineDateiGibtEinenStrich) {
  leg({QStringLiteral("a.txt")});
  EXPECT_EQ(DateiWaehlen(muster()), QStringLiteral("-"));
  EXPECT_EQ(DateiWaehlen(AppPfad + QStringLiteral("fehlt/*.TKS")), QStringLiteral("-"));
}

TEST_F(Formen, EineDateiKommtOhneFrage) {
  leg({QStringLiteral("eins.TKS"), QStringLiteral("anderes.txt")});
  EXPECT_EQ(DateiWaehlen(muster()), QStringLiteral("eins.TKS"));
}

TEST_F(Formen, GroßUndKleinschreibungDerEndungZähltNicht) {
  leg({QStringLiteral("eins.tks")});
  EXPECT_EQ(DateiWaehlen(muster()), QStringLiteral("eins.tks"));
}

TEST_F(Formen, EinOrdnerIstKeineDatei) {
  QDir(AppPfad).mkdir(QStringLiteral("ordner.TKS"));
  EXPECT_EQ(DateiWaehlen(muster()), QStringLiteral("-"));
}

TEST_F(Formen, MehrereDateienZeigenDieAuswahlNachDemAlphabet) {
  leg({QStringLiteral("b.TKS"), QStringLiteral("A.TKS"), QStringLiteral("c.TKS"),
       QStringLiteral("c.txt")});
  QStringList gezeigt;
  wennOffen(QStringLiteral("TS_Dateiauswahl"), [&](QWidget* fenster) {
    EXPECT_EQ(fenster->windowTitle(), QStringLiteral("Datei-Auswahl"));
    for (int i = 0; i < liste(fenster)->count(); ++i) gezeigt += liste(fenster)->item(i)->text();
    QTest::keyClick(liste(fenster), Qt::Key_Down);
    klick(fenster, "ok");
  });
  EXPECT_EQ(DateiWaehlen(muster()), QStringLiteral("b.TKS"));
  EXPECT_EQ(gezeigt.join(u' '), QStringLiteral("A.TKS b.TKS c.TKS"));
  EXPECT_EQ(DateiErgebnis, QStringLiteral("b.TKS"));
}

TEST_F(Formen, SchließenLässtDasErgebnisLeer) {
  leg({QStringLiteral("a.TKS"), QStringLiteral("b.TKS")});
  DateiErgebnis = QStringLiteral("von vorhin");
  wennOffen(QStringLiteral("TS_Dateiauswahl"), [](QWidget* fenster) {
    EXPECT_EQ(knopf(fenster, "schliessen")->text(), QStringLiteral("&Schließen"));
    klick(fenster, "schliessen");
  });
  EXPECT_EQ(DateiWaehlen(muster()), QString());
  EXPECT_EQ(DateiErgebnis, QString());
}

TEST_F(Formen, EscLässtDasErgebnisLeer) {
  leg({QStringLiteral("a.TKS"), QStringLiteral("b.TKS")});
  wennOffen(QStringLiteral("TS_Dateiauswahl"),
            [](QWidget* fenster) { QTest::keyClick(fenster, Qt::Key_Escape); });
  EXPECT_EQ(DateiWaehlen(muster()), QString());
}

TEST_F(Formen, DoppelklickUndEingabetasteWählen) {
  leg({QStringLiteral("a.TKS"), QStringLiteral("b.TKS")});
  wennOffen(QStringLiteral("TS_Dateiauswahl"),
            [](QWidget* fenster) { QTest::keyClick(liste(fenster), Qt::Key_Return); });
  EXPECT_EQ(DateiWaehlen(muster()), QStringLiteral("a.TKS"));
  wennOffen(QStringLiteral("TS_Dateiauswahl"), [](QWidget* fenster) {
    const QPoint mitte = liste(fenster)->visualItemRect(liste(fenster)->item(1)).center();
    QTest::mouseClick(liste(fenster)->viewport(), Qt::LeftButton, {}, mitte);
    QTest::mouseDClick(liste(fenster)->viewport(), Qt::LeftButton, {}, mitte);
  });
  EXPECT_EQ(DateiWaehlen(muster()), QStringLiteral("b.TKS"));
}

TEST_F(Formen, LeereAuswahlLässtSichNichtBestätigen) {
  TS_Dateiauswahl form(muster(), nullptr);
  EXPECT_FALSE(knopf(&form, "ok")->isEnabled());
}

TEST_F(Formen, DateinameWirdÜbernommen) {
  wennOffen(QStringLiteral("TS_Dateispeichern"), [](QWidget* fenster) {
    EXPECT_EQ(fenster->windowTitle(), QStringLiteral("Datei speichern"));
    EXPECT_EQ(feld(fenster)->accessibleName(),
              QStringLiteral("Bitte geben Sie den Dateinamen (ohne Endung) ein"));
    QTest::keyClicks(feld(fenster), QStringLiteral("Liste_2026"));
    klick(fenster, "ok");
  });
  TS_Dateispeichern(nullptr).zeigen();
  EXPECT_EQ(DateiErgebnis, QStringLiteral("Liste_2026"));
}

TEST_F(Formen, ImDateinamenFallenAndereTastenWeg) {
  TS_Dateispeichern form(nullptr);
  QTest::keyClicks(feld(&form), QStringLiteral("a-b c.d/e:f\\g?Z*_9,;'+#"));
  EXPECT_EQ(feld(&form)->inhalt(), QStringLiteral("abcdefgZ*_9"));
  QTest::keyClick(feld(&form), Qt::Key_Backspace);
  EXPECT_EQ(feld(&form)->inhalt(), QStringLiteral("abcdefgZ*_"));
}

TEST_F(Formen, EineTasteDieWegfälltLässtDenCursorStehen) {
  TS_Dateispeichern form(nullptr, QStringLiteral("abcd"));
  feld(&form)->setCursorPosition(2);
  QTest::keyClicks(feld(&form), QStringLiteral("-x"));
  EXPECT_EQ(feld(&form)->inhalt(), QStringLiteral("abxcd"));
}

TEST_F(Formen, EingefügterTextWirdBereinigt) {
  TS_Dateispeichern form(nullptr);
  QApplication::clipboard()->setText(QStringLiteral("../Völker 2026.TKS"));
  feld(&form)->paste();
  EXPECT_EQ(feld(&form)->inhalt(), QStringLiteral("Vlker2026TKS"));
}

TEST_F(Formen, DerVorschlagStehtMarkiertDa) {
  TS_Dateispeichern form(nullptr, QStringLiteral("Völker 1"));
  EXPECT_EQ(feld(&form)->inhalt(), QStringLiteral("Vlker1"));
  EXPECT_EQ(feld(&form)->selectedText(), QStringLiteral("Vlker1"));
}

TEST_F(Formen, SpeichernAbbrechenLässtDasErgebnisLeer) {
  for (const bool mitTaste : {true, false}) {
    DateiErgebnis = QStringLiteral("von vorhin");
    wennOffen(QStringLiteral("TS_Dateispeichern"), [mitTaste](QWidget* fenster) {
      QTest::keyClicks(feld(fenster), QStringLiteral("abc"));
      if (mitTaste)
        QTest::keyClick(fenster, Qt::Key_Escape);
      else
        klick(fenster, "schliessen");
    });
    TS_Dateispeichern(nullptr).zeigen();
    EXPECT_EQ(DateiErgebnis, QString());
  }
}

TEST_F(Formen, JedeEingabeHatEinenNamenUndEinenZugänglichenNamen) {
  leg({QStringLiteral("a.TKS"), QStringLiteral("b.TKS")});
  TS_Dateiauswahl auswahl(muster(), nullptr);
  TS_Dateispeichern speichern(nullptr);
  EXPECT_FALSE(liste(&auswahl)->accessibleName().isEmpty());
  for (QWidget* form : {static_cast<QWidget*>(&auswahl), static_cast<QWidget*>(&speichern)})
    for (const QPushButton* einer : form->findChildren<QPushButton*>())
      EXPECT_FALSE(einer->objectName().isEmpty());
}

}  // namespace
