#pragma once

#include <QHash>
#include <array>

#include "mainform/Einstellungen.h"
#include "mainform/Feldfolge.h"
#include "platform/controls/Formular.h"

class Eingabefeld;
class QBoxLayout;
class QCheckBox;
class QFormLayout;
class QListWidget;
class QPushButton;
class QTabWidget;
class QToolButton;

// The settings. Money and weights have two decimals, as many as the settings file keeps.
class TO_Einstellungen : public Formular {
 public:
  explicit TO_Einstellungen(QWidget* öffner = nullptr);

 protected:
  void füllen() override;  // slots to inputs, first tab

 private:
  // TO_Einstellungen_Aufbau.cpp
  void aufbauen();
  QWidget* reiterBauen(int nummer);
  QWidget* schalterBauen(const Einstellungen::Schalter& s);
  void eingabeBauen(const Einstellungen::Eingabe& e, QFormLayout* zeilen);
  QWidget* felderBauen();
  QWidget* anzeigeBauen();
  QWidget* reihenfolgeBauen();
  QListWidget* hakenliste(const QString& name, const QString& titel, const QStringList& texte,
                          QBoxLayout* ziel);
  void feldlisteBauen(size_t nummer, QBoxLayout* ziel);
  void verbinden();
  void reihenfolgeSetzen();

  void zeige(const Einstellungen::Stand& stand);
  void zeigeSortierfelder(const QStringList& felder);
  Einstellungen::Stand stand() const;
  void standardSetzen();
  void speichern();
  void alleAnhaken(bool ja);
  void verschieben(size_t liste, int schritt);

  // A list whose fields the user orders, with its two buttons (0 up, 1 down).
  struct Feldliste {
    QListWidget* liste = nullptr;
    std::array<QToolButton*, 2> knopf{};
    QStringList felder;
    QStringList geladen;  // in the order before
  };

  QHash<int, QCheckBox*> m_kon;
  QHash<int, Eingabefeld*> m_sevt;
  QListWidget* m_litext1 = nullptr;
  QListWidget* m_litext2 = nullptr;
  std::array<Feldliste, 2> m_feldlisten;  // in the order of Feldfolge::Liste: lifelder, listock
  QTabWidget* m_reiter = nullptr;
  QPushButton* m_alle = nullptr;
  QPushButton* m_keine = nullptr;
  QPushButton* m_standard = nullptr;
  QPushButton* m_ok = nullptr;
};
