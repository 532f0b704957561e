#pragma once

#include <QPointer>
#include <QString>

class QWidget;
class TE_Eingabe;
class TH_Hilfe_Wieanfangen;
class TO_Einstellungen;
class TV_Arplanoptionen;
class TV_EinVerkauf_Lager;
class TV_Neues_Volk;
class TV_Pflanzen_Standorte;
class TV_Starttermine;
class TV_Terminverwaltung;

// The forms that open over the main form: one instance each, made on first use. Each call shows
// the form modally and returns when it was closed.
class Formen {
 public:
  explicit Formen(QWidget* haupt) : m_haupt(haupt) {}

  void volk(const QString& volkModus);
  void eingabe(int buchungsArt);
  void standorte(const QString& formModus);
  void handel(const QString& formModus);
  void einstellungen();
  void arbeitsplanoptionen();
  void termine();
  void aktuelleTermine();
  void wieAnfangen();
  // Over whatever form asks for it.
  static void hilfe(QWidget* oeffner, const QString& thema);

 private:
  QWidget* m_haupt;
  QPointer<TV_Neues_Volk> m_volk;
  QPointer<TE_Eingabe> m_eingabe;
  QPointer<TV_Pflanzen_Standorte> m_standorte;
  QPointer<TV_EinVerkauf_Lager> m_handel;
  QPointer<TO_Einstellungen> m_einstellungen;
  QPointer<TV_Arplanoptionen> m_arbeitsplanoptionen;
  QPointer<TV_Terminverwaltung> m_termine;
  QPointer<TV_Starttermine> m_aktuelleTermine;
  QPointer<TH_Hilfe_Wieanfangen> m_wieAnfangen;
};
