#pragma once

#include <algorithm>
#include <optional>

#include "evaluations/Wirtschaftsjahre.h"
#include "evaluations/Zahlenbetrieb.h"
#include "gemeinsam/Beispielordner.h"

// On what an evaluation is compared with a statement for each cell: the sample operation, and one
// that is close together and has what real tables hold besides.
enum class Bestand { Beispiel, Dicht };

class Vergleichsbestand : public Zahlenbetrieb, public testing::WithParamInterface<Bestand> {
 protected:
  void SetUp() override;

  // Several years, one, and some before and behind all bookings.
  static QList<Auswertung::Jahre> zeiträume() {
    if (GetParam() == Bestand::Dicht) return {{1999, 2011}, {2004, 2006}, {2006, 2006}};
    return {{2023, 2027}, {2025, 2026}, {2025, 2025}};
  }

  // The one value of a statement, as a form reads it.
  static double gelesen(const QString& anweisung) {
    return ZahlLesen(TextLesen(db().Lesen(anweisung)->wert(0, 0)));
  }
  // The rest of a statement that joins a booking table, by the colony choice of the inputs.
  QString rest() const {
    return QStringList{" where Bienenvolk.Akt_im_Bestand = 'X'",
                       " where Bienenvolk.Volknr IS NOT NULL", " where Bienenvolk.Selektiert = 'X'",
                       " where Bienenvolk.Akt_im_Bestand <> 'X'",
                       " where Bienenvolk.ID = 4"}[e.wahl("optitieraus")];
  }

 private:
  std::optional<Beispielordner> m_beispiel;
};

inline std::string bestandsname(const testing::TestParamInfo<Bestand>& info) {
  return info.param == Bestand::Dicht ? "Dicht" : "Beispiel";
}

// Colonies of every kind and bookings close together: fields and days left empty, numbers below
// zero, thirds, millions, days at both ends of a year, bookings of colonies that are gone from the
// register. The same on every run.
class DichterBestand : public Zahlenbetrieb {
 public:
  static void kopieren() {
    static Musterdatenbank muster([] { füllen(); });
    muster.kopieren();
  }

 private:
  static constexpr int Völker = 14;

  static quint32 zufall(quint32 unter) {
    static quint32 stand = 1;
    stand = stand * 1664525 + 1013904223;
    return (stand >> 8) % unter;
  }

  static QVariant tag() {
    static const QList<QDate> ränder{{2003, 12, 31}, {2004, 1, 1},   {2004, 12, 31}, {2005, 1, 1},
                                     {2006, 12, 31}, {2007, 1, 1},   {2004, 2, 29},  {1999, 7, 1},
                                     {2010, 12, 31}, {2008, 12, 31}, {2011, 1, 1}};
    switch (zufall(8)) {
      case 0:
        return {};
      case 1:
        return ränder[zufall(static_cast<quint32>(ränder.size()))];
      default:
        return QDate(2003, 12, 1).addDays(zufall(5 * 365));
    }
  }

  static QVariant einfach() {
    switch (zufall(7)) {
      case 0:
        return {};
      case 1:
        return zufall(100) / 3.0;
      case 2:
        return -1.5;
      case 3:
        return 0.0;
      default:
        return zufall(40000) / 100.0;
    }
  }

  static QVariant währung() {
    switch (zufall(7)) {
      case 0:
        return {};
      case 1:
        return 1234567.8901 + zufall(1000);
      case 2:
        return -2.25;
      case 3:
        return zufall(100000) / 10000.0;
      default:
        return zufall(30000) / 100.0;
    }
  }

  static QVariant wert(const Spalte& feld) {
    if (feld.name == "Volk_ID") return zufall(12) == 0 ? QVariant() : QVariant(zufall(Völker) + 2);
    if (feld.name == "Prämie_erhalten") return QStringList{"J", "N", "j", ""}[zufall(4)];
    switch (feld.typ) {
      case Feldtyp::Datum:
        return tag();
      case Feldtyp::Einfach:
        return einfach();
      case Feldtyp::Währung:
        return währung();
      case Feldtyp::Lang:
      case Feldtyp::Kurz:
        return zufall(5) == 0 ? QVariant() : QVariant(zufall(900));
      default:
        return "";
    }
  }

  static void füllen() {
    db().Sammelschreiben([] {
      const QVariantList bestand{"X", "", QVariant(), "X", "x"};
      for (int i = 0; i < Völker; ++i)
        volk(QString::number((i * 5) % Völker), bestand[i % bestand.size()], i % 3 ? "" : "X");
      for (const char* tabelle :
           {"Stockkarte", "Honigernte", "Wachsernte", "Pollenernte", "Sonstigeernte", "Arbeiten",
            "Wanderung", "Gewichtsmessung", "Behandlung", "Königinwechsel", "Einkauf", "Verkauf"})
        for (int i = 0; i < 400; ++i) {
          Felder felder;
          for (const Spalte& feld : db().Felder(tabelle))
            if (feld.name != "ID") felder.append({feld.name, wert(feld)});
          einfügen(tabelle, felder);
        }
    });
  }
};

inline void Vergleichsbestand::SetUp() {
  if (GetParam() == Bestand::Dicht) return DichterBestand::kopieren();
  m_beispiel.emplace();
  db().Execute("update Bienenvolk set Selektiert = 'X' where ID in (2, 4, 9)");
}
