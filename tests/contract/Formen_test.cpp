#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "Eingabehilfen.h"
#include "Formenliste.h"
#include "Formregeln.h"
#include "core/help.h"

namespace {

constexpr QSize KleinerSchirm(1366, 728);

struct Fall {
  size_t nummer;
  int prozent;  // of the ordinary font
};

std::vector<Fall> fälle() {
  std::vector<Fall> alle;
  for (size_t i = 0; i < formenliste().size(); ++i)
    for (const int prozent : {100, 150}) alle.push_back({i, prozent});
  return alle;
}

std::string fallname(const testing::TestParamInfo<Fall>& info) {
  return formenliste()[info.param.nummer].fall.toStdString() + "_" +
         std::to_string(info.param.prozent);
}

std::string text(const QStringList& zeilen) { return zeilen.join(u'\n').toStdString(); }

void PrintTo(const Fall& fall, std::ostream* aus) {
  *aus << qPrintable(formenliste()[fall.nummer].fall) << " " << fall.prozent << " %";
}

class Formvertrag : public testing::TestWithParam<Fall> {
 protected:
  void SetUp() override {
    m_schrift = QApplication::font();
    QFont schrift = m_schrift;
    schrift.setPointSizeF(schrift.pointSizeF() * GetParam().prozent / 100);
    QApplication::setFont(schrift);
    betrieb = std::make_unique<Betrieb>();
  }
  void TearDown() override {
    schließen();
    betrieb.reset();
    QApplication::setFont(m_schrift);
  }

  const Formfall& fall() const { return formenliste()[GetParam().nummer]; }
  void öffnen() {
    schließen();  // a second main form in the folder wouldn't start
    zeigen(fall().machen(*betrieb));
  }
  void zeigen(Form neu) {
    schließen();
    form = std::move(neu);
    ASSERT_NE(form, nullptr);
    form->show();
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    QApplication::processEvents();
  }
  void schließen() {
    if (form && form->isVisible()) form->close();
    form.reset();
  }
  void neuerBetrieb() {
    schließen();
    betrieb.reset();
    betrieb = std::make_unique<Betrieb>();
    öffnen();
  }

  // The first stop of the Tab key of each kind of control, by name.
  QStringList jeArt() {
    QStringList arten, namen;
    for (const QWidget* w : Formregeln::tabfolge(form.get())) {
      const QString art = w->metaObject()->className();
      if (arten.contains(art) || w->objectName().startsWith("qt_")) continue;
      arten << art;
      namen << w->objectName();
    }
    return namen;
  }
  QWidget* kind(const QString& name) { return form->findChild<QWidget*>(name); }

  std::unique_ptr<Betrieb> betrieb;
  Form form;

 private:
  QFont m_schrift;
};

// Closes each window that opens over the form.
class Nebenfenster {
 public:
  explicit Nebenfenster(std::function<void(QWidget*)> gesehen = {}) {
    QObject::connect(&m_takt, &QTimer::timeout, &m_takt, [gesehen] {
      QWidget* fenster = QApplication::activeModalWidget();
      if (fenster == nullptr) return;
      if (gesehen) gesehen(fenster);
      fenster->close();
    });
    m_takt.start(5);
  }

 private:
  QTimer m_takt;
};

QPushButton* standardknopf(QWidget* form) {
  for (auto* knopf : form->findChildren<QPushButton*>())
    if (knopf->isDefault()) return knopf;
  return nullptr;
}

}  // namespace

TEST_P(Formvertrag, TrägtIhrenNamen) {
  öffnen();
  EXPECT_EQ(form->objectName().toStdString(), fall().objekt.toStdString());
  EXPECT_FALSE(form->windowTitle().isEmpty());
}

TEST_P(Formvertrag, JedeEingabeHatNamenUndBeschriftung) {
  öffnen();
  Formregeln::jedeSeite(form.get(), [&] {
    EXPECT_EQ(text(Formregeln::namen(form.get())), "");
    EXPECT_EQ(text(Formregeln::gleichnamig(form.get())), "");
  });
}

TEST_P(Formvertrag, MnemonicsTreffenSichNicht) {
  öffnen();
  QStringList doppelt;
  Formregeln::jedeSeite(form.get(), [&] { doppelt << Formregeln::mnemonics(form.get()); });
  doppelt.removeDuplicates();  // what stands outside of the pages
  EXPECT_EQ(text(doppelt), text(fall().doppelt));
  EXPECT_EQ(text(Formregeln::doppeltImMenü(form.get())), text(fall().doppeltImMenü));
}

TEST_P(Formvertrag, TabulatorGehtDurchAlleEingaben) {
  öffnen();
  Formregeln::jedeSeite(form.get(),
                        [&] { EXPECT_EQ(text(Formregeln::tabregeln(form.get())), ""); });
}

TEST_P(Formvertrag, KleinsteGrößeZeigtAllesUndPasstAufDenSchirm) {
  öffnen();
  Formregeln::jedeSeite(form.get(), [&] {
    EXPECT_EQ(text(Formregeln::beschnitten(form.get())), "");
    EXPECT_LE(form->width(), KleinerSchirm.width());
    EXPECT_LE(form->height(), KleinerSchirm.height());
  });
}

TEST_P(Formvertrag, EscSchließtUndSchreibtNichts) {
  öffnen();
  const QStringList halte = jeArt();
  ASSERT_FALSE(halte.isEmpty());
  for (const QString& halt : halte) {
    öffnen();
    const QString vorher = Betrieb::abbild();
    kind(halt)->setFocus();
    QTest::keyClick(kind(halt), Qt::Key_Escape);
    EXPECT_EQ(form->isVisible(), fall().hauptformular) << qPrintable(halt);
    EXPECT_TRUE(vorher == Betrieb::abbild()) << qPrintable(halt);
  }
  EXPECT_EQ(betrieb->boxen.fehler().toStdString(), "");
}

TEST_P(Formvertrag, F1FragtNachDerEigenenHilfe) {
  if (!fall().hilfethema.isEmpty()) {
    const auto abschnitt = Hilfe::abschnitt(fall().hilfethema);
    ASSERT_TRUE(abschnitt.has_value()) << qPrintable(fall().hilfethema);
    EXPECT_GE(abschnitt->size(), 3);
  }
  öffnen();
  // The main form shows its help itself, as a window over it.
  const Nebenfenster zu([&](QWidget*) { betrieb->hilfen << TZ_Variablen::HilfeThema; });
  for (const QString& halt : jeArt()) {
    betrieb->hilfen.clear();
    kind(halt)->setFocus();
    QTest::keyClick(kind(halt), Qt::Key_F1);
    const QStringList soll =
        fall().hilfethema.isEmpty() ? QStringList() : QStringList{fall().hilfethema};
    EXPECT_EQ(text(betrieb->hilfen), text(soll)) << qPrintable(halt);
    EXPECT_TRUE(form->isVisible());
  }
}

// From a button Enter presses that button, in a text of many lines it begins a new one; from all
// else it presses the default button or at least writes nothing.
TEST_P(Formvertrag, EingabetasteDrücktDenStandardknopfOderSchadetNicht) {
  öffnen();
  // Before the Tab key gets to a button: that one is the default as long as it has the keyboard.
  QString standard;
  if (const QPushButton* knopf = standardknopf(form.get())) standard = knopf->objectName();
  if (!fall().schlicht) {
    EXPECT_EQ(standard.toStdString(), fall().standardknopf.toStdString());
  }
  const QStringList halte = jeArt();
  const Nebenfenster zu;  // as a print dialog
  for (const QString& halt : halte) {
    neuerBetrieb();
    if (qobject_cast<QAbstractButton*>(kind(halt))) continue;
    const QString vorher = Betrieb::abbild();
    int gedrückt = 0;
    const bool eingabe = qobject_cast<QLineEdit*>(kind(halt)) != nullptr;
    QPushButton* knopf = eingabe && !fall().eingabeknopf.isEmpty()
                             ? form->findChild<QPushButton*>(fall().eingabeknopf)
                             : standardknopf(form.get());
    if (knopf != nullptr)
      QObject::connect(knopf, &QPushButton::clicked, form.get(), [&] { ++gedrückt; });
    kind(halt)->setFocus();
    QTest::keyClick(kind(halt), Qt::Key_Return);
    if (eingabe && !standard.isEmpty()) {
      EXPECT_EQ(gedrückt, 1) << qPrintable(halt);
    }
    if (gedrückt == 0) {
      EXPECT_TRUE(vorher == Betrieb::abbild()) << qPrintable(halt);
    }
    betrieb->boxen.fehler();  // whatever the default button had to say
  }
}

TEST_P(Formvertrag, GespeichertesKommtBeimWiederöffnenGleich) {
  if (!fall().sichern || !fall().sichern->wieder) return;
  const Sichern& sichern = *fall().sichern;
  öffnen();
  fülle(form.get(), sichern.unberührt, sichern.werte);
  const auto vorher = inhalte(form.get());
  ASSERT_FALSE(vorher.isEmpty());
  if (sichern.boxen) sichern.boxen(betrieb->boxen);
  drücke(form.get(), sichern.knopf);
  EXPECT_EQ(betrieb->boxen.fehler().toStdString(), "");

  zeigen(sichern.wieder(*betrieb));
  if (sichern.auswählen) sichern.auswählen(form.get());
  const auto nachher = inhalte(form.get());
  for (auto feld = vorher.begin(); feld != vorher.end(); ++feld)
    EXPECT_EQ(nachher.value(feld.key()).toStdString(), feld.value().toStdString())
        << qPrintable(feld.key());
}

TEST_P(Formvertrag, AbgelehntesSpeichernSchreibtNichts) {
  if (!fall().sichern || !fall().sichern->verderben) return;
  öffnen();
  fülle(form.get(), fall().sichern->unberührt, fall().sichern->werte);
  fall().sichern->verderben(form.get(), betrieb->boxen);
  const QString vorher = Betrieb::abbild();
  const Sichern& sichern = *fall().sichern;
  drücke(form.get(), sichern.abgelehnt.isEmpty() ? sichern.knopf : sichern.abgelehnt);
  EXPECT_EQ(betrieb->boxen.fehler().toStdString(), "");
  EXPECT_TRUE(vorher == Betrieb::abbild());
  EXPECT_TRUE(form->isVisible());
}

TEST_P(Formvertrag, LöschenFragtErst) {
  if (!fall().löschen) return;
  const Löschen& löschen = *fall().löschen;
  öffnen();
  const QString vorher = Betrieb::abbild();
  const qint64 anzahl = Betrieb::anzahl(löschen.tabelle);
  betrieb->boxen.frageMit(löschen.frage, false);
  löschen.auslösen(form.get());
  EXPECT_EQ(betrieb->boxen.fehler().toStdString(), "");
  EXPECT_TRUE(vorher == Betrieb::abbild());

  betrieb->boxen.frageMit(löschen.frage, true);
  löschen.auslösen(form.get());
  EXPECT_EQ(betrieb->boxen.fehler().toStdString(), "");
  EXPECT_EQ(Betrieb::anzahl(löschen.tabelle), anzahl - 1);
}

INSTANTIATE_TEST_SUITE_P(Alle, Formvertrag, testing::ValuesIn(fälle()), fallname);
