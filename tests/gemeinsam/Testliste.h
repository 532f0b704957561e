#pragma once

#include <QHash>
#include <QStringList>
#include <algorithm>

#include "core/globals.h"
#include "core/main_list.h"
#include "platform/database/werte/Datenblock.h"

// The main list as a plain table, for tests. While it lives it is the list in use.
class Testliste : public Hauptliste {
 public:
  // The colonies in stock; another statement gives other rows or another order.
  explicit Testliste(
      QString anweisung = QStringLiteral("select * from Bienenvolk where Akt_im_Bestand = 'X'"))
      : m_anweisung(std::move(anweisung)), m_vorher(hauptliste()) {
    setHauptliste(this);
    datenvölkerlesen();
  }
  // Rows given as they are, without a database.
  explicit Testliste(Daten daten) : m_daten(std::move(daten)), m_vorher(hauptliste()) {
    setHauptliste(this);
    setAktuelleZeile(zeilen() > 0 ? 0 : -1);
  }
  explicit Testliste(const QList<QHash<QString, QString>>& zeilen) : Testliste(block(zeilen)) {}
  ~Testliste() override { setHauptliste(m_vorher); }
  Testliste(const Testliste&) = delete;
  Testliste& operator=(const Testliste&) = delete;

  int zeilen() const override { return m_daten ? m_daten->zeilen() : 0; }
  int aktuelleZeile() const override { return m_aktuell; }
  void setAktuelleZeile(int zeile) override {
    m_aktuell = zeile;
    m_markiert = zeile < 0 ? QList<int>() : QList<int>{zeile};
    TZ_Variablen::AktVolkID = zeile < 0 ? QString() : zelle(zeile, QStringLiteral("ID"));
    ++wechsel;
    if (TZ_Variablen::BildAnhalten == 0) ++wechselOhneHalt;
  }
  QList<int> markierteZeilen() const override { return m_markiert; }
  void setMarkierteZeilen(const QList<int>& zeilen) override {
    m_markiert = zeilen;
    std::sort(m_markiert.begin(), m_markiert.end());
  }
  QString zelle(int zeile, const QString& spalte) const override {
    const int nummer = m_daten ? m_daten->spaltenNummer(spalte) : -1;
    if (nummer < 0 || zeile < 0 || zeile >= zeilen()) return {};
    return m_daten->anzeige(zeile, nummer);
  }
  void löscheZeile(int zeile) override {
    TZ_Variablen::DB.Execute(QStringLiteral("delete from Bienenvolk where ID = ?"),
                             {zelle(zeile, QStringLiteral("ID")).toLongLong()});
    const int danach = std::min(zeile, zeilen() - 2);
    datenvölkerlesen();
    setAktuelleZeile(danach);
  }
  // As the main list does it: the first row becomes current, the order to reload is settled.
  void datenvölkerlesen() override {
    ++gelesen;
    if (!m_anweisung.isEmpty()) m_daten = TZ_Variablen::DB.Lesen(m_anweisung);
    setAktuelleZeile(zeilen() > 0 ? 0 : -1);
    TZ_Variablen::ListeNeuLesen = 0;
  }

  int gelesen = 0;          // how often the list was read anew
  int wechsel = 0;          // how often a row was made current
  int wechselOhneHalt = 0;  // of these, without BildAnhalten

 private:
  static Daten block(const QList<QHash<QString, QString>>& zeilen) {
    QStringList namen;
    for (const auto& zeile : zeilen)
      for (auto feld = zeile.begin(); feld != zeile.end(); ++feld)
        if (!namen.contains(feld.key())) namen.append(feld.key());
    std::vector<Spalte> spalten;
    for (const QString& name : namen) spalten.push_back({name, Feldtyp::Text, 0});
    Datenblock::Bauer bauer(spalten);
    for (const auto& zeile : zeilen)
      for (const QString& name : namen) bauer.text(QStringView(zeile.value(name)));
    return bauer.fertig();
  }

  QString m_anweisung;
  Daten m_daten;
  int m_aktuell = -1;
  QList<int> m_markiert;
  Hauptliste* m_vorher;
};
