#include "colonies/Volkeingabe.h"

#include <QStringList>
#include <algorithm>
#include <limits>

#include "core/globals.h"
#include "data/helpers.h"
#include "platform/database/Recordset.h"
#include "platform/files/Textdatei.h"

namespace {

constexpr int SevtVolknr = 0;
constexpr int SevtWabenJeMagazin = 17;
constexpr int LetzteGemeinsameZeile = 16;  // lines 1 to 16 are sevt 1 to 16

// The line numbers count from 1. What the file doesn't have stays as it is, as an older file ends
// early.
class Standardzeilen {
 public:
  explicit Standardzeilen(QStringList zeilen) : m_zeilen(std::move(zeilen)) {}
  bool hat(int nummer) const { return nummer <= m_zeilen.size(); }
  const QString& zeile(int nummer) const { return m_zeilen.at(nummer - 1); }

 private:
  QStringList m_zeilen;
};

void standardLesen(Volkeingabe& eingabe) {
  if (!Textdatei::existiert(volkStandardDatei())) return;
  const Standardzeilen zeilen(Textdatei::lesen(volkStandardDatei()));
  const auto nimm = [&](int sevt, int nummer) {
    if (zeilen.hat(nummer))
      eingabe.sevt[static_cast<size_t>(sevt)] =
          zeilen.zeile(nummer).left(volkfelder().at(sevt).maxLänge);
  };
  for (int i = 1; i <= LetzteGemeinsameZeile; ++i) nimm(i, i);
  if (zeilen.hat(17)) eingabe.kon = GanzLesen(zeilen.zeile(17)) != 0;
  nimm(18, 18);
  nimm(19, 19);
}

}  // namespace

QString& Volkeingabe::operator[](const Volkfeld& feld) {
  const auto i = static_cast<size_t>(feld.index);
  return feld.array == Volkarray::sevt ? sevt[i] : sevtx[i];
}

const QString& Volkeingabe::operator[](const Volkfeld& feld) const {
  const auto i = static_cast<size_t>(feld.index);
  return feld.array == Volkarray::sevt ? sevt[i] : sevtx[i];
}

QString volkFolgenummer(const QString& letzteNummer) {
  if (TZ_Variablen::EinstellungenZahl[Zahlslots.volknummerHochzählen] == 0 ||
      !NurZiffern(letzteNummer))
    return {};
  const int maxLänge = volkfelder().at(SevtVolknr).maxLänge;
  if (letzteNummer.size() > maxLänge) return {};
  const QString folge = QString::number(letzteNummer.toLongLong() + 1);
  return folge.size() > maxLänge ? QString() : folge;
}

Volkeingabe volkNeu(const QString& letzteNummer) {
  Volkeingabe eingabe;
  eingabe.sevt[SevtVolknr] = volkFolgenummer(letzteNummer);
  standardLesen(eingabe);
  eingabe.sevt[SevtWabenJeMagazin] =
      QString::number(TZ_Variablen::EinstellungenZahl[Zahlslots.wabenJeMagazin]);
  return eingabe;
}

std::optional<Volkeingabe> volkLaden(Database& db, qint64 id) {
  Recordset rs = db.OpenRecordset("select * from Bienenvolk where ID = ?", {id});
  if (rs.RecordCount() == 0) return std::nullopt;
  Volkeingabe eingabe;
  for (const Volkfeld& feld : volkfelder())
    eingabe[feld] = Verwaltung::feldtext(feld, rs.Wert(feld.feld));
  eingabe.kon = TextLesen(rs.Wert("Akt_im_Bestand")) == QLatin1String("X");
  return eingabe;
}

QString volkStandardDatei() { return TZ_Variablen::AppPfad + "TV_Neues_Volk.TV2"; }

void volkStandardSchreiben(const Volkeingabe& eingabe) {
  QStringList zeilen;
  for (int i = 1; i <= LetzteGemeinsameZeile; ++i) zeilen << eingabe.sevt[static_cast<size_t>(i)];
  zeilen << QString::number(eingabe.kon ? 1 : 0) << eingabe.sevt[18] << eingabe.sevt[19]
         << eingabe.sevt[SevtWabenJeMagazin];
  Textdatei::schreiben(volkStandardDatei(), zeilen);
  const qint64 waben = GanzLesen(eingabe.sevt[SevtWabenJeMagazin]);
  TZ_Variablen::EinstellungenZahl[Zahlslots.wabenJeMagazin] =
      static_cast<qint16>(std::clamp<qint64>(waben, std::numeric_limits<qint16>::min(),
                                             std::numeric_limits<qint16>::max()));
}
