#pragma once

#include <QAbstractButton>
#include <QApplication>
#include <QTest>
#include <QTimer>
#include <memory>

#include "data/helpers.h"
#include "planning/Terminbestand.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"
#include "platform/database/Verbindung.h"

// A form of the calendar, driven by key and mouse. Boxes that no test expected fail.
template <typename T>
class Terminformprobe : public Terminbestand {
 protected:
  void SetUp() override {
    Terminbestand::SetUp();
    Eingabefeld::setDatumErgaenzer([](const QString& text) { return DatumErgaenzen(text); });
  }
  void TearDown() override {
    EXPECT_EQ(boxen.fehler().toStdString(), "");
    form.reset();
    Terminbestand::TearDown();
  }

  void oeffne() {
    form = std::make_unique<T>();
    form->laden();
    form->show();
    form->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
  }
  template <typename K = QWidget>
  K* kind(const QString& name) {
    K* k = form->template findChild<K*>(name);
    EXPECT_NE(k, nullptr) << name.toStdString();
    return k;
  }
  Grid* li() { return kind<Grid>("litermine"); }
  Eingabefeld* feld(int index) { return kind<Eingabefeld>(QString("sevt_%1").arg(index)); }
  std::string inhalt(int index) { return feld(index)->inhalt().toStdString(); }
  void tippe(int index, const QString& text) {
    feld(index)->setFocus();
    feld(index)->selectAll();
    QTest::keyClick(feld(index), Qt::Key_Delete);
    QTest::keyClicks(feld(index), text);
  }
  void klicke(const QString& name) {
    auto* k = kind<QAbstractButton>(name);
    QTest::mouseClick(k, Qt::LeftButton, {}, QPoint(8, k->height() / 2));
  }
  QPoint mitte(int zeile) {
    const QModelIndex index = li()->model()->index(zeile, 0);
    li()->scrollTo(index);
    return li()->visualRect(index).center();
  }
  void klickeZeile(int zeile) {
    QTest::mouseClick(li()->viewport(), Qt::LeftButton, {}, mitte(zeile));
  }
  void doppelklick(int zeile) {
    klickeZeile(zeile);
    QTest::mouseDClick(li()->viewport(), Qt::LeftButton, {}, mitte(zeile));
  }
  // A season's appointments: twelve colonies at three sites, long names among them.
  void saison() {
    const QStringList orte = {"Hausgarten", "Lindenallee am Schloßpark hinter der Mühle", "Heide"};
    const QStringList arten = {"Schwarmkontrolle", "Honigraum aufsetzen",
                               "Behandlung mit Ameisensäure"};
    for (int i = 0; i < 12; ++i) {
      const qint64 volk = neuesVolk(QString::number(i + 1), "X", orte[i % 3]);
      db().Execute("update Bienenvolk set Volkname = ? where ID = ?",
                   {QString(i % 2 == 0 ? "Anna von der Au" : "Berta"), volk});
      for (int k = 0; k < 3; ++k) termin(tag(6, 8 + 4 * k + i % 2), arten[k], volk);
    }
    termin(tag(6, 16), "Imkerstammtisch");
    termin(tag(6, 17), "Honigprämierung anmelden", 0, "J");
  }
  // From now on this kind of write on the appointments fails with "kein Platz", where the
  // condition holds.
  static void scheitern(const QByteArray& art, const QByteArray& wenn = "1") {
    Verbindung::zu(TZ_Variablen::DatenbankPfad)
        ->steuere("create trigger voll before " + art + " on Termine when " + wenn +
                  " begin select raise(abort, 'kein Platz'); end");
  }
  // Keeps the window as a picture where TOVA_BILDER names a folder.
  static void bild(QWidget* fenster, const QString& name) {
    const QString ordner = qEnvironmentVariable("TOVA_BILDER");
    if (ordner.isEmpty()) return;
    EXPECT_TRUE(fenster->grab().save(ordner + "/" + name + ".png"));
  }
  // The column's texts from top to bottom.
  std::string spalte(const QString& name) {
    QStringList texte;
    for (int i = 0; i < li()->zeilen(); ++i) texte << li()->zelle(i, name);
    return texte.join(' ').toStdString();
  }

  Meldungen::Probe boxen;
  std::unique_ptr<T> form;
};

// Looks at the modal form that comes up and closes it.
class Formblick {
 public:
  explicit Formblick(std::function<void(QWidget*)> blick) : m_blick(std::move(blick)) {
    QObject::connect(&m_takt, &QTimer::timeout, &m_takt, [this] {
      QWidget* form = QApplication::activeModalWidget();
      if (form == nullptr) return;
      m_takt.stop();
      name = form->objectName();
      m_blick(form);
      form->close();
    });
    m_takt.start(5);
  }
  QString name;

 private:
  std::function<void(QWidget*)> m_blick;
  QTimer m_takt;
};
