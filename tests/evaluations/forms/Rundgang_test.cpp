// Every evaluation of the program on the sample operation: it opens, each of its runs gives
// something, the result stands in every output, and nothing is written.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "core/globals.h"
#include "evaluations/forms/Auswertungsformular.h"
#include "gemeinsam/Beispielordner.h"
#include "gemeinsam/Bildschirm.h"
#include "gemeinsam/Testliste.h"
#include "mainform/Menue.h"
#include "mainform/forms/Formen.h"
#include "mainform/forms/Verdrahtung.h"
#include "output/Excelausgabe.h"
#include "output/Textliste.h"
#include "output/Uebergabe.h"
#include "output/Webbericht.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"

using namespace TZ_Variablen;

namespace {

// Looks at each window that a run opens, leaves its picture and closes it.
class Folgefenster {
 public:
  explicit Folgefenster(QString bild) : m_bild(std::move(bild)) {
    QObject::connect(&m_takt, &QTimer::timeout, &m_takt, [this] { ansehen(); });
    m_takt.start(5);
  }
  QStringList gesehen;  // the names of the windows
  int zeilen = 0;       // of the last list or text

 private:
  void ansehen() {
    QWidget* fenster = QApplication::activeModalWidget();
    if (fenster == nullptr) return;
    gesehen += fenster->objectName();
    if (auto* liste = fenster->findChild<Grid*>("gridli")) zeilen = liste->zeilen();
    if (auto* text = fenster->findChild<QPlainTextEdit*>("t"))
      zeilen = text->document()->blockCount();
    bildAblegen(*fenster, m_bild);
    fenster->close();
  }
  QString m_bild;
  QTimer m_takt;
};

QStringList einträge() {
  QStringList alle;
  for (const Formen::Eintrag& e : Formen::liste()) {
    const std::unique_ptr<Formular> form(e.machen(nullptr));
    if (dynamic_cast<Auswertungsformular*>(form.get()) != nullptr) alle += e.eintrag;
  }
  return alle;
}

class Rundgang : public testing::TestWithParam<QString> {
 protected:
  Rundgang() { Verdrahtung::herstellen(); }

  // The breeding book is the only table that the sample operation leaves empty.
  static void züchten() {
    if (GetParam() != u"XW_Zuchtbuch") return;
    for (const int jahr : {2024, 2025})
      DB.Execute("insert into Zuchtbuch(Jahr, Zuchtbuchnr, Sanftmut) values (?, ?, 3)",
                 {QString::number(jahr), "DE-6-" + QString::number(jahr)});
  }
  void öffne() {
    const auto& alle = Formen::liste();
    const auto eintrag = std::ranges::find(alle, GetParam(), &Formen::Eintrag::eintrag);
    m_form.reset(dynamic_cast<Auswertungsformular*>(eintrag->machen(nullptr)));
    m_form->laden();
    m_form->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(m_form.get()));
  }
  void TearDown() override { EXPECT_EQ(boxen.fehler().toStdString(), ""); }

  Beispielordner m_ordner;
  Testliste m_liste{"select * from Bienenvolk where Akt_im_Bestand = 'X' order by Volknr"};
  Meldungen::Probe boxen;
  std::unique_ptr<Auswertungsformular> m_form;
};

// What the run has handed over goes into every output.
void überallAusgeben(const QString& befehl) {
  const Ausgabeliste liste = Übergabe::lesen(Übergabe::datei());
  EXPECT_GT(liste.zeilen(), 0) << befehl.toStdString();
  Textliste::schreiben(AppPfad + "LISTE.TXT", liste, listenkopf(), Textliste::trennzeichen());
  Excelausgabe::schreiben(AppPfad + "liste.xlsx", liste, listenkopf());
  EXPECT_FALSE(Webbericht::schreiben(AppPfad, liste, Webbericht::vorgaben()).isEmpty());
  EXPECT_GT(QFile(AppPfad + "LISTE.TXT").size(), 0);
}

TEST_P(Rundgang, JederLaufErgibtEtwasUndSchreibtNichts) {
  züchten();
  const QByteArray vorher = Beispielordner::dateibytes();
  öffne();
  bildAblegen(*m_form, m_form->objectName());
  // The report of three years is longer than the text field can hold.
  if (GetParam() == u"XW_Stockkarten") boxen.hinweisMit("Der Text ist über 32 kB groß.");
  for (const Auswertung::Befehl& b : m_form->beschreibung().befehle) {
    if (!b.lauf) continue;
    Folgefenster fenster(m_form->objectName() + "_" + b.name);
    auto* knopf = m_form->findChild<QPushButton*>(b.name);
    ASSERT_NE(knopf, nullptr) << b.name.toStdString();
    knopf->click();
    if (const QString liste = m_form->beschreibung().ergebnisliste; !liste.isEmpty()) {
      EXPECT_GT(m_form->findChild<Grid*>(liste)->zeilen(), 0) << b.name.toStdString();
      bildAblegen(*m_form, m_form->objectName() + "_" + b.name);
      m_form->findChild<QPushButton*>("ok")->click();
      ASSERT_EQ(fenster.gesehen, QStringList("TA_Zwischenliste")) << b.name.toStdString();
      überallAusgeben(b.name);
      continue;
    }
    ASSERT_EQ(fenster.gesehen.size(), 1) << b.name.toStdString();
    EXPECT_GT(fenster.zeilen, 0) << b.name.toStdString();
    if (fenster.gesehen.first() == "TA_Zwischenliste") überallAusgeben(b.name);
  }
  m_form->close();
  EXPECT_EQ(Beispielordner::dateibytes(), vorher);
}

TEST_P(Rundgang, WasEingestelltWarStehtBeimNächstenÖffnenWiederDa) {
  öffne();
  m_form->close();
  const auto zahlen = EinstellungenZahl;
  const auto texte = EinstellungenText;
  const Auswertung::Eingaben eingaben = m_form->eingaben();
  öffne();
  EXPECT_TRUE(m_form->eingaben() == eingaben);
  m_form->close();
  EXPECT_EQ(EinstellungenZahl, zahlen);
  EXPECT_EQ(EinstellungenText, texte);
}

INSTANTIATE_TEST_SUITE_P(Alle, Rundgang, testing::ValuesIn(einträge()), [](const auto& info) {
  QString name = info.param;
  name.removeIf([](QChar c) { return c.unicode() > 127 || !c.isLetterOrNumber(); });
  return name.toStdString() + std::to_string(info.index);
});

}  // namespace
