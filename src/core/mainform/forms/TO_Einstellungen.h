#pragma once

#include <QHash>
#include <array>

#include "core/mainform/Einstellungen.h"
#include "core/mainform/Feldfolge.h"
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
  explicit TO_Einstellungen(QWidget* oeffner = nullptr);

  // Loads the settings, shows the form modally and returns when it was closed. Throws
  // Datenbankfehler when the lists' fields can't be read; it isn't shown then.
  void zeigen();
  // Loading alone: slots to inputs, first tab.
  void laden();

 private:
  // TO_Einstellungen_aufbau.cpp
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
  QWidget* knoepfeBauen();
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

  QHash<int, QCheckBox*> kon;
  QHash<int, Eingabefeld*> sevt;
  QListWidget* litext1 = nullptr;
  QListWidget* litext2 = nullptr;
  std::array<Feldliste, 2> m_feldlisten;  // in the order of Feldfolge::Liste: lifelder, listock
  QTabWidget* reiter = nullptr;
  QPushButton* alle = nullptr;
  QPushButton* keine = nullptr;
  QPushButton* standard = nullptr;
  QPushButton* ok = nullptr;
  QPushButton* comhilfe = nullptr;
  QPushButton* cmdabbrechen = nullptr;
};
