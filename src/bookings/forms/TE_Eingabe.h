#pragma once

#include <array>
#include <exception>

#include "bookings/Buchung.h"
#include "bookings/Masken.h"
#include "bookings/Pruefungen.h"
#include "bookings/Rechnen.h"
#include "core/forms/Datenformular.h"

class Grid;
class QButtonGroup;
class QComboBox;
class QLabel;
class QPushButton;
class QSplitter;
class Slotfelder;

// The one form through which every dated event of a colony is entered, changed and deleted. The
// opener sets BuchungsArt and calls zeigen(). The colonies are those of hauptliste(), whose current
// row and marking the form mirrors and drives.
class TE_Eingabe : public Datenformular {
 public:
  explicit TE_Eingabe(QWidget* öffner);

  void done(int ergebnis) override;  // every way out: button, frame, Esc

 protected:
  void füllen() override;
  void keyPressEvent(QKeyEvent* event) override;
  bool eventFilter(QObject* objekt, QEvent* event) override;

 private:
  // TE_Eingabe_Aufbau.cpp
  QWidget* baueVölker();
  QWidget* baueBuchung();
  QWidget* baueArten();
  QWidget* baueKnöpfe();
  QWidget* baueListe();
  void tabFolgeSetzen();

  // TE_Eingabe.cpp
  void verbinden();
  void listenFüllen();
  void volkliFüllen();
  void MaskeAufbauen();
  void FeldEinrichten(const Buchungsslot& slot);
  void BuchungenLaden();
  void listeBinden();
  void listeLeeren();
  void zeileZeigen(int zeile);
  void slotGeändert(int nummer);
  void vorgabenHolen(int nummer);
  void einsetzen(const QList<Slotänderung>& änderungen);
  void abschließen();
  QString volkId() const;

  // TE_Eingabe_Aktionen.cpp
  void neu(int index);
  void neuBuchen();
  void ändern();
  void markierungNehmen(const QStringList& gebucht);
  void nachFehler(const std::exception_ptr& fehler, const Buchung& buchung,
                  const QString& buchungId);
  bool zugestimmt(const Prüfergebnis& ergebnis);
  void datumVervollständigen();
  void löschen();
  void maskeSichernUndMelden();
  void maskeHolen();
  void anzeigeGewählt(int bereich);
  void artGewählt(int art);
  void nachbarvolk(int richtung);
  void volkAngeklickt(int zeile);
  void markierungNachziehen();
  void standortGewählt(int index);

  // Texts that the program puts in are no entry of the user: nothing is computed from them.
  class Füllen {
   public:
    explicit Füllen(int& zähler) : m_zähler(zähler) { ++m_zähler; }
    ~Füllen() { --m_zähler; }
    Füllen(const Füllen&) = delete;
    Füllen& operator=(const Füllen&) = delete;

   private:
    int& m_zähler;
  };

  QString m_geänderteVölker;
  Wabenstand m_basis;  // MW_Basis, WZ_Basis
  int m_wabenJeMagazin = 0;
  Slotarten m_slotarten{};
  Daten m_daten;  // the rows behind li
  bool m_offen = false;
  int m_füllt = 0;
  int m_angeordnet = -1;        // the type that the slots are laid out for
  bool m_volkPerTaste = false;  // the last move in volkli came from the keyboard

  QSplitter* m_teiler = nullptr;
  Slotfelder* m_slots = nullptr;
  QButtonGroup* m_opti = nullptr;
  QButtonGroup* m_anzeige = nullptr;
  QLabel* m_überschrift = nullptr;
  Grid* m_li = nullptr;
  Grid* m_volkli = nullptr;
  QComboBox* m_kom = nullptr;
  std::array<QPushButton*, 2> m_nextvolk{};
  std::array<QPushButton*, 2> m_neu{};
  std::array<QPushButton*, 2> m_standard{};
  QPushButton* m_löschen = nullptr;
};
