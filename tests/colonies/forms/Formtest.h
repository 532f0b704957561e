#pragma once

#include <QTabWidget>

#include "colonies/Testbetrieb.h"
#include "colonies/forms/TV_Neues_Volk.h"
#include "gemeinsam/Formularprobe.h"
#include "gemeinsam/Testliste.h"

// The form over a list of all colonies.
class Formtest : public Formularprobe<TV_Neues_Volk, Testbetrieb> {
 protected:
  void SetUp() override {
    Formularprobe::SetUp();
    db().Execute("delete from Arbeitsplanoptionen");
  }
  void TearDown() override {
    form.reset();
    liste.reset();
    Formularprobe::TearDown();
  }

  void öffne(const QString& modus, int zeile = 0) {
    if (!liste) liste = std::make_unique<Testliste>("select * from Bienenvolk order by ID");
    if (liste->zeilen() > 0) liste->setAktuelleZeile(zeile);
    TZ_Variablen::VolkModus = modus;
    TZ_Variablen::ListeNeuLesen = 0;
    Formularprobe::öffne();
  }
  void neu() { öffne("Neu"); }
  void ändern(int zeile = 0) { öffne(QString("Ändern"), zeile); }

  QString inhalt(const QString& name) { return feld(name)->inhalt(); }

  // Brings the field's tab to the front and types over what stands there.
  void tippe(const QString& name, const QString& text) {
    zeigeReiter(feld(name));
    Formularprobe::tippe(name, text);
  }
  void zeigeReiter(QWidget* w) {
    auto* reiter = kind<QTabWidget>("reiter");
    for (int i = 0; i < reiter->count(); ++i)
      if (reiter->widget(i)->isAncestorOf(w)) reiter->setCurrentIndex(i);
  }
  void klicke(const QString& name) {
    zeigeReiter(kind(name));
    Formularprobe::klicke(name);
  }

  std::unique_ptr<Testliste> liste;
};
