#include "platform/controls/Meldungen.h"

#include <gtest/gtest.h>

#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

#include "platform/controls/Ereignis.h"
#include "platform/controls/Hilfen.h"

using Meldungen::Vorgabe;

namespace {

void taste(QWidget* dialog, Qt::Key taste) {
  QTest::keyClick(dialog->focusWidget() != nullptr ? dialog->focusWidget() : dialog, taste);
}

// Asks with real keys and gives the answer.
bool frage(Vorgabe vorgabe, Qt::Key mit) {
  imDialog([mit](QWidget* dialog) { taste(dialog, mit); });
  return Meldungen::Frage(QStringLiteral("Wirklich?"), vorgabe);
}

}  // namespace

TEST(Meldungen, HinweisZeigtTextTitelUndOk) {
  QString text, titel, knopf;
  imDialog([&](QWidget* dialog) {
    auto* box = qobject_cast<QMessageBox*>(dialog);
    ASSERT_NE(box, nullptr);
    text = box->text();
    titel = box->windowTitle();
    knopf = box->buttons().first()->text();
    EXPECT_EQ(box->buttons().size(), 1);
    EXPECT_EQ(box->icon(), QMessageBox::Information);
    taste(dialog, Qt::Key_Return);
  });
  Meldungen::Hinweis(QStringLiteral("Erste Zeile\r\nzweite <b>Zeile</b>"));
  EXPECT_EQ(text, QStringLiteral("Erste Zeile\nzweite <b>Zeile</b>"));
  EXPECT_EQ(titel, QStringLiteral("TOVA 2.0"));
  EXPECT_EQ(knopf, QStringLiteral("&OK"));
}

TEST(Meldungen, FrageHatDeutscheKnöpfe) {
  QStringList knöpfe;
  imDialog([&](QWidget* dialog) {
    for (const auto* knopf : qobject_cast<QMessageBox*>(dialog)->buttons()) knöpfe += knopf->text();
    taste(dialog, Qt::Key_Escape);
  });
  Meldungen::Frage(QStringLiteral("Wirklich?"));
  knöpfe.sort();
  EXPECT_EQ(knöpfe, QStringList({QStringLiteral("&Ja"), QStringLiteral("&Nein")}));
}

TEST(Meldungen, EnterNimmtDieVorgabe) {
  EXPECT_TRUE(frage(Vorgabe::Ja, Qt::Key_Return));
  EXPECT_FALSE(frage(Vorgabe::Nein, Qt::Key_Return));
}

TEST(Meldungen, EscIstNein) { EXPECT_FALSE(frage(Vorgabe::Ja, Qt::Key_Escape)); }

TEST(Meldungen, KlickAufJaIstJa) {
  imDialog([](QWidget* dialog) {
    QTest::mouseClick(dialog->findChild<QPushButton*>(QStringLiteral("ja")), Qt::LeftButton);
  });
  EXPECT_TRUE(Meldungen::Frage(QStringLiteral("Wirklich?"), Vorgabe::Nein));
}

TEST(Meldungen, SchließenDesFenstersIstNein) {
  imDialog([](QWidget* dialog) { dialog->close(); });
  EXPECT_FALSE(Meldungen::Frage(QStringLiteral("Wirklich?"), Vorgabe::Ja));
}

TEST(Meldungen, SehrLangerTextPasstAufDenSchirm) {
  QString text;
  for (int i = 0; i < 300; ++i) text += QStringLiteral("... Grund %1\r\n").arg(i);
  QSize größe;
  imDialog([&](QWidget* dialog) {
    größe = dialog->size();
    taste(dialog, Qt::Key_Return);
  });
  Meldungen::Hinweis(text);
  EXPECT_LE(größe.height(), QGuiApplication::primaryScreen()->availableGeometry().height());
}

TEST(Meldungen, LangerTextOhneUmbruchPasstAuchAufDenSchirm) {
  QSize größe;
  imDialog([&](QWidget* dialog) {
    größe = dialog->size();
    taste(dialog, Qt::Key_Return);
  });
  Meldungen::Hinweis(QStringLiteral("Ein langer Satz ohne Zeilenumbruch. ").repeated(200));
  const QSize schirm = QGuiApplication::primaryScreen()->availableGeometry().size();
  EXPECT_LE(größe.height(), schirm.height());
  EXPECT_LE(größe.width(), schirm.width());
}

TEST(Meldungen, ÜberDerSanduhrStehtDerGewöhnlicheZeiger) {
  Qt::CursorShape zeiger = Qt::BlankCursor;
  imDialog([&](QWidget* dialog) {
    zeiger = QApplication::overrideCursor()->shape();
    taste(dialog, Qt::Key_Return);
  });
  {
    const Ereignis::Sanduhr uhr;
    Meldungen::Hinweis(QStringLiteral("fertig"));
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
  }
  EXPECT_EQ(zeiger, Qt::ArrowCursor);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST(MeldungenProbe, ErwartetesKommtOhneFehler) {
  Meldungen::Probe probe;
  probe.hinweis(QStringLiteral("eins\r\nzwei"))
      .frage(QStringLiteral("Löschen?"), true, Vorgabe::Nein)
      .hinweisMit(QStringLiteral("teil"))
      .frageMit(QStringLiteral("wirklich"), false);
  Meldungen::Hinweis(QStringLiteral("eins\nzwei"));
  EXPECT_TRUE(Meldungen::Frage(QStringLiteral("Löschen?"), Vorgabe::Nein));
  Meldungen::Hinweis(QStringLiteral("ein Gegenteil"));
  EXPECT_FALSE(Meldungen::Frage(QStringLiteral("Soll wirklich?")));
  EXPECT_EQ(probe.fehler(), QString());
}

TEST(MeldungenProbe, UnerwartetesIstEinFehler) {
  Meldungen::Probe probe;
  Meldungen::Hinweis(QStringLiteral("Huch"));
  EXPECT_EQ(probe.fehler(), QStringLiteral("Nicht erwartet: Hinweis \"Huch\""));
  EXPECT_EQ(probe.fehler(), QString());
}

TEST(MeldungenProbe, ÜbriggebliebenesIstEinFehler) {
  Meldungen::Probe probe;
  probe.frage(QStringLiteral("Löschen?"), true);
  EXPECT_EQ(probe.fehler(), QStringLiteral("Ausgeblieben: Frage \"Löschen?\""));
}

TEST(MeldungenProbe, AndererTextIstEinFehlerUndNein) {
  Meldungen::Probe probe;
  probe.frage(QStringLiteral("Löschen?"), true);
  EXPECT_FALSE(Meldungen::Frage(QStringLiteral("Speichern?")));
  EXPECT_EQ(probe.fehler(),
            QStringLiteral("Erwartet: Frage \"Löschen?\", gekommen: Frage \"Speichern?\""));
}

TEST(MeldungenProbe, AndereVorgabeIstEinFehler) {
  Meldungen::Probe probe;
  probe.frage(QStringLiteral("Löschen?"), true, Vorgabe::Nein);
  EXPECT_TRUE(Meldungen::Frage(QStringLiteral("Löschen?"), Vorgabe::Ja));
  EXPECT_EQ(probe.fehler(), QStringLiteral("Andere Vorgabe: Frage \"Löschen?\""));
}
