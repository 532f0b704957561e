#pragma once

#include <QAbstractButton>
#include <QLabel>
#include <QTest>
#include <memory>

#include "colonies/Testbetrieb.h"
#include "planning/forms/TV_Arplanoptionen.h"
#include "platform/controls/Eingabefeld.h"
#include "platform/controls/Grid.h"
#include "platform/controls/Meldungen.h"

inline const QString Loeschfrage =
    "Soll der markierte Datensatz wirklich unwiederbringlich gelöscht werden?";
inline const QString Neufrage =
    "Durch diese Aktion werden alle Termine lt. Arbeitsplanoptionen aus dem aktuellen Jahr 2006 "
    "gelöscht und neu berechnet. Es werden auch die erledigten Termine gelöscht. Berechnet werden "
    "die Termine lediglich ab dem aktuellen Datum 20.06.2006.\n\nSoll die Aktion wirklich "
    "ausgeführt werden?";
inline const QString Aendernhinweis =
    "Sie haben [Ändern] ausgewählt. Bitte beachten Sie, daß lediglich der Inhalt des Feldes "
    "Arbeitsart geändert wird. Falls Sie ein anderes Datenfeld ändern möchten, dann müssen Sie den "
    "Termin vorher löschen und wieder neu anlegen.";

// The form of the work plan options on the 20th of June 2006, driven by key and mouse. Boxes that
// no test expected fail.
class Arplanprobe : public Testbetrieb {
 protected:
  void SetUp() override {
    Testbetrieb::SetUp();
    TZ_Variablen::EinstellungenZahl[55] = 1;
    db().Execute("delete from Arbeitsplanoptionen");
  }
  void TearDown() override {
    EXPECT_EQ(boxen.fehler().toStdString(), "");
    form.reset();
    Testbetrieb::TearDown();
  }

  void oeffne() {
    form = std::make_unique<TV_Arplanoptionen>();
    form->laden();
    form->show();
    form->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
  }
  template <typename T = QWidget>
  T* kind(const QString& name) {
    T* k = form->findChild<T*>(name);
    if (k == nullptr) ADD_FAILURE() << "fehlt: " << name.toStdString();
    return k;
  }
  Eingabefeld* feld(int i) { return kind<Eingabefeld>(QString("sevt_%1").arg(i)); }
  QStringList inhalte() {
    QStringList texte;
    for (int i = 0; i < 7; ++i) texte << feld(i)->inhalt();
    return texte;
  }
  void tippe(int i, const QString& text) {
    Eingabefeld* f = feld(i);
    f->setFocus();
    if (f->art() == Eingabefeld::Art::Auswahl) {
      f->setInhalt({});
      if (!text.isEmpty()) QTest::keyClicks(f, text.left(1));
      return;
    }
    f->selectAll();
    QTest::keyClick(f, Qt::Key_Delete);
    QTest::keyClicks(f, text);
  }
  void fuelle(const QString& name, const QString& start, const QString& ende, const QString& volk) {
    tippe(0, name);
    tippe(1, start);
    tippe(2, ende);
    tippe(4, volk);
  }
  void klicke(const QString& name) {
    QTest::mouseClick(kind<QAbstractButton>(name), Qt::LeftButton);
  }
  Grid* liste() { return kind<Grid>("liarplan"); }
  void klickeZeile(int zeile) {
    Grid* grid = liste();
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {},
                      grid->visualRect(grid->model()->index(zeile, 0)).center());
  }
  QStringList namen() {
    QStringList texte;
    for (int i = 0; i < liste()->zeilen(); ++i) texte << liste()->zelle(i, "Arbeitsart");
    return texte;
  }
  static void termin(const QString& text, QDate datum, qint64 volk = 1) {
    db().Execute("insert into Termine(Datum, Termin, Erledigt, Volk_ID) values (?, ?, 'N', ?)",
                 {datum, text, volk});
  }

  Meldungen::Probe boxen;
  std::unique_ptr<TV_Arplanoptionen> form;
};
