#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <memory>

#include "core/settings.h"
#include "gemeinsam/Musterdatenbank.h"
#include "mainform/Start.h"
#include "mainform/forms/TA_TOVA.h"
#include "platform/controls/Formular.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"

// Waits for the modal form of that name, acts on it and closes it.
class Formbesuch {
 public:
  explicit Formbesuch(const QString& name, std::function<void(QWidget*)> aktion = {})
      : m_name(name), m_aktion(std::move(aktion)) {
    m_uhr.start();
    QObject::connect(&m_takt, &QTimer::timeout, &m_takt, [this] { prüfen(); });
    m_takt.start(5);
  }
  bool war() const { return m_war; }

 private:
  void prüfen() {
    QWidget* form = QApplication::activeModalWidget();
    if (form == nullptr) return;
    if (form->objectName() != m_name) {
      if (m_uhr.elapsed() > 10000) form->close();  // not the one awaited: the test fails, not hangs
      return;
    }
    m_takt.stop();
    m_war = true;
    if (m_aktion) m_aktion(form);
    if (form->isVisible()) form->close();
  }

  QString m_name;
  std::function<void(QWidget*)> m_aktion;
  QTimer m_takt;
  QElapsedTimer m_uhr;
  bool m_war = false;
};

// A program folder and the main form on it, on the 15th of June 2024.
class Hauptumfeld : public testing::Test {
 protected:
  void TearDown() override {
    EXPECT_EQ(probe.fehler().toStdString(), "");
    beenden();
    Fensterablage::setDatei({});
    // A test that ended the program told every event loop to end, those of later tests too.
    QTimer::singleShot(0, QCoreApplication::instance(), &QCoreApplication::quit);
    QCoreApplication::exec();
  }

  // Puts colonies into the database before the start: held ones "1" to n, gone ones "A1" to m.
  void völker(int bestand, int abgang = 0) {
    leereDatenbank();
    const auto neu = [](const QString& nummer, const QString& akt) {
      TZ_Variablen::DB.Execute(
          "insert into Bienenvolk (Volknr, Volkname, Akt_im_Bestand) values (?, ?, ?)",
          {nummer, QStringLiteral("Volk ") + nummer, akt});
    };
    for (int i = 1; i <= bestand; ++i) neu(QString::number(i), QStringLiteral("X"));
    for (int i = 1; i <= abgang; ++i) neu(QStringLiteral("A%1").arg(i), {});
    trennen();
  }
  static void trennen() { Programmordner::trenne(); }

  bool laden(bool druckerDa = true) {
    form = std::make_unique<TA_TOVA>();
    return form->laden({m_ordner.path(), QDate(2024, 6, 15), [druckerDa] { return druckerDa; }});
  }
  // The whole start, up to the first activation. With an empty list the first steps are shown.
  void starten() {
    ASSERT_TRUE(laden());
    zeigen();
  }
  void zeigen() {
    form->resize(1200, 700);
    form->show();
    QApplication::processEvents();
    form->aktivieren();
    QApplication::processEvents();
  }
  // Closes the program as the user does.
  void schließen() {
    form->close();
    beenden();
  }
  void beenden() {
    form.reset();
    trennen();
  }

  template <typename T>
  T* finde(const QString& name) const {
    T* gefunden = form->findChild<T*>(name);
    if (gefunden == nullptr) ADD_FAILURE() << "fehlt: " << qPrintable(name);
    return gefunden;
  }
  Grid* datali() const { return finde<Grid>("datali"); }
  QAction* aktion(const QString& name) const { return finde<QAction>(name); }
  void klick(const QString& knopf) const {
    auto* ziel = finde<QAbstractButton>(knopf);
    // A radio button or check box takes the click on its sign.
    QTest::mouseClick(ziel, Qt::LeftButton, {}, QPoint(10, ziel->height() / 2));
    QApplication::processEvents();
  }
  QPoint zeilenmitte(int zeile) const {
    return datali()->visualRect(datali()->model()->index(zeile, 0)).center();
  }
  QString panel() const { return finde<QPlainTextEdit>("text1")->toPlainText(); }
  QStringList nummern() const {
    QStringList liste;
    for (int i = 0; i < form->zeilen(); ++i) liste << form->zelle(i, "Volknr");
    return liste;
  }
  QStringList filtertexte() const {
    QStringList texte;
    for (int i = 0; i < 3; ++i)
      texte << finde<QAbstractButton>(QStringLiteral("optiverkauft_%1").arg(i))->text();
    return texte;
  }
  QString datei(const QString& name) const { return m_ordner.filePath(name); }
  void dateiSchreiben(const QString& name, const QByteArray& inhalt) const {
    QFile f(datei(name));
    ASSERT_TRUE(f.open(QFile::WriteOnly));
    f.write(inhalt);
  }
  QByteArray dateiLesen(const QString& name) const {
    QFile f(datei(name));
    return f.open(QFile::ReadOnly) ? f.readAll() : QByteArray();
  }

  Programmordner m_ordner{QStringLiteral("15.06.2024")};
  Meldungen::Probe probe;
  std::unique_ptr<TA_TOVA> form;
};
