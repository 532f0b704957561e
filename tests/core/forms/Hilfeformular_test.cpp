#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QScrollBar>
#include <QTest>
#include <QTextBrowser>
#include <QTimer>

#include "core/forms/TH_Hilfe.h"
#include "core/help.h"
#include "gemeinsam/Programmordner.h"
#include "platform/controls/Ereignis.h"
#include "platform/controls/Meldungen.h"
#include "platform/files/Textdatei.h"

using namespace TZ_Variablen;

namespace {

class Hilfeformular : public testing::Test {
 protected:
  Hilfeformular() { HilfeThema = QStringLiteral("TA_TOVA"); }

  static void legDatei() {
    Textdatei::schreiben(
        Hilfe::datei(),
        {QStringLiteral("TA_TOVA"), QStringLiteral("Das Hauptfenster"), QStringLiteral("====="),
         QStringLiteral("Links <die> Völker."), QStringLiteral("- rechts die Daten"),
         QStringLiteral("#ende#"), QStringLiteral("Zwei"), QStringLiteral("Zweites Thema"),
         QStringLiteral("#ende#")});
  }
  static QTextBrowser* text(QWidget* form) {
    return form->findChild<QTextBrowser*>(QStringLiteral("hilfetext"));
  }

  Programmordner m_ordner{"20.06.2026"};
};

TEST_F(Hilfeformular, ZeigtDenAbschnittDesThemas) {
  legDatei();
  TH_Hilfe form(nullptr);
  form.laden();
  EXPECT_EQ(text(&form)->toPlainText(),
            QStringLiteral("Das Hauptfenster\nLinks <die> Völker.\nrechts die Daten"));
}

TEST_F(Hilfeformular, EinAnderesThemaErsetztDasErste) {
  legDatei();
  TH_Hilfe form(nullptr);
  form.laden();
  HilfeThema = QStringLiteral("Zwei");
  form.laden();
  EXPECT_EQ(text(&form)->toPlainText(), QStringLiteral("Zweites Thema"));
}

TEST_F(Hilfeformular, FehlendeDateiWirdGemeldetUndNichtsGezeigt) {
  Meldungen::Probe probe;
  probe.hinweis(QStringLiteral("Die Hilfedatei ") + AppPfad +
                QStringLiteral("HILFETOVA.HLP existiert nicht!"));
  TH_Hilfe form(nullptr);
  EXPECT_FALSE(Ereignis::ausführen(nullptr, [&] { form.zeigen(); }));
  EXPECT_FALSE(form.isVisible());
  EXPECT_EQ(probe.fehler().toStdString(), "");
}

TEST_F(Hilfeformular, UnbekanntesThemaWirdGesagt) {
  legDatei();
  HilfeThema = QStringLiteral("TW_Statistik");
  TH_Hilfe form(nullptr);
  form.laden();
  EXPECT_TRUE(text(&form)->toPlainText().contains(
      QStringLiteral("gibt es zum Thema TW_Statistik noch keinen Abschnitt")))
      << text(&form)->toPlainText().toStdString();
}

TEST_F(Hilfeformular, EscUndSchließenBeenden) {
  legDatei();
  for (const bool mitTaste : {true, false}) {
    TH_Hilfe form(nullptr);
    bool offen = false;
    QTimer::singleShot(0, &form, [&] {
      offen = form.isVisible() && form.isModal();
      if (mitTaste)
        QTest::keyClick(text(&form), Qt::Key_Escape);
      else
        QTest::mouseClick(form.findChild<QPushButton*>(QStringLiteral("schliessen")),
                          Qt::LeftButton);
    });
    form.zeigen();
    EXPECT_TRUE(offen);
    EXPECT_FALSE(form.isVisible());
  }
}

TEST_F(Hilfeformular, F1ÖffnetKeineZweiteHilfe) {
  legDatei();
  int gerufen = 0;
  Formular::setHilfe([&](QWidget*, const QString&) { ++gerufen; });
  TH_Hilfe form(nullptr);
  form.laden();
  form.show();
  QTest::keyClick(text(&form), Qt::Key_F1);
  Formular::setHilfe({});
  EXPECT_EQ(gerufen, 0);
}

TEST_F(Hilfeformular, TextLässtSichKopierenAberNichtÄndern) {
  legDatei();
  TH_Hilfe form(nullptr);
  form.laden();
  form.show();
  QTest::keyClicks(text(&form), QStringLiteral("xyz"));
  EXPECT_FALSE(text(&form)->toPlainText().contains(QStringLiteral("xyz")));
  QTest::keyClick(text(&form), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(text(&form), Qt::Key_C, Qt::ControlModifier);
  EXPECT_TRUE(QApplication::clipboard()->text().contains(QStringLiteral("Das Hauptfenster")));
}

TEST_F(Hilfeformular, EinLangerTextBeginntOben) {
  QStringList zeilen{QStringLiteral("TA_TOVA")};
  for (int i = 0; i < 500; ++i) zeilen += {QStringLiteral("Absatz %1").arg(i), QString()};
  zeilen += QStringLiteral("#ende#");
  Textdatei::schreiben(Hilfe::datei(), zeilen);
  TH_Hilfe form(nullptr);
  form.laden();
  form.show();
  QTest::keyClick(text(&form), Qt::Key_End, Qt::ControlModifier);
  EXPECT_GT(text(&form)->verticalScrollBar()->value(), 0);
  form.laden();
  EXPECT_EQ(text(&form)->verticalScrollBar()->value(), 0);
}

}  // namespace
