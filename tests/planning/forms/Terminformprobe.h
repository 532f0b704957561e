#pragma once

#include <QApplication>
#include <QTimer>

#include "gemeinsam/Bildschirm.h"
#include "gemeinsam/Formularprobe.h"
#include "planning/Terminbestand.h"
#include "platform/database/verbindung/Verbindung.h"

// A form of the calendar: its list is litermine.
template <typename T>
class Terminformprobe : public Formularprobe<T, Terminbestand> {
 protected:
  Grid* li() { return this->liste("litermine"); }
  void klickeZeile(int zeile) { this->wähle("litermine", zeile); }
  void doppelklick(int zeile) {
    klickeZeile(zeile);
    QTest::mouseDClick(li()->viewport(), Qt::LeftButton, {}, this->mitte(li(), zeile));
  }
  // From now on this kind of write on the appointments fails with "kein Platz", where the
  // condition holds.
  static void scheitern(const QByteArray& art, const QByteArray& wenn = "1") {
    Verbindung::zu(TZ_Variablen::DatenbankPfad)
        ->steuere("create trigger voll before " + art + " on Termine when " + wenn +
                  " begin select raise(abort, 'kein Platz'); end");
  }
  // The column's texts from top to bottom.
  std::string spalte(const QString& name) {
    QStringList texte;
    for (int i = 0; i < li()->zeilen(); ++i) texte << li()->zelle(i, name);
    return texte.join(' ').toStdString();
  }
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
