#include <QRegularExpression>

#include "evaluations/Listengenerator.h"
#include "examples/Betriebsfall.h"

namespace {

// One statement for each cell, the field found by the rules for its label.
class NachDenRegeln {
 public:
  explicit NachDenRegeln(qint64 volk) : m_volk(volk) {}

  QString wert(const QString& bezeichnung) const {
    const QString name = QString(bezeichnung).replace(u' ', u'_');
    for (const auto& [teil, tabelle] : {std::pair{"etzte_Arbeit", "Arbeiten"},
                                        {"etzte_Wanderung", "Wanderung"},
                                        {"etztes_Gewicht", "Gewichtsmessung"},
                                        {"etzte_Behandlung", "Behandlung"}})
      if (name.contains(QString(teil)) && name != "Letzte_Behandlung")
        return verlauf(name, QString(teil), QString(tabelle));
    return zelle("select * from Bienenvolk where ID = ", 0, stammfeld(name));
  }

 private:
  static QString stammfeld(const QString& name) {
    static const QHash<QString, QString> anders = {{"Honigwaben_verdeckelt", "HW_verdeckelt"},
                                                   {"Brutwaben_Stifte", "BW_Stift"},
                                                   {"Brutwaben_offen", "BW_offen"},
                                                   {"Brutwaben_verdeckelt", "BW_verdeckelt"},
                                                   {"Frühjahrsentwicklung", "Frühjahrsentw"},
                                                   {"Letzte_Honigernte", "L_Honigernte"},
                                                   {"Letzte_Honigmenge", "L_Honigmenge_kg"},
                                                   {"Letzte_Behandlung", "L_Behandlung"},
                                                   {"Aktuell_im_Bestand", "Akt_im_Bestand"}};
    return anders.value(name, name);
  }
  QString verlauf(const QString& name, const QString& teil, const QString& tabelle) const {
    static const QHash<QString, QString> felder = {{"Arbeiten", "Arbeitsart"},
                                                   {"Gewichtsmessung", "Gewicht_kg"},
                                                   {"Arbeiten_Datum", "Datum"},
                                                   {"Arbeiten_Bemerkung", "Bemerkung"},
                                                   {"Wanderung_Datum", "Datum"},
                                                   {"Wanderung_Standort", "Standort"},
                                                   {"Wanderung_Bemerkung", "Bemerkung"},
                                                   {"Gewichtsmessung_Datum", "Datum"},
                                                   {"Behandlung_Datum", "Datum"},
                                                   {"Behandlung_Mittel", "Mittel"},
                                                   {"Behandlung_Menge", "Menge_g"},
                                                   {"Behandlung_Art", "Behandlungsart"},
                                                   {"Behandlung_Zulassungsnr", "Zulassungsnr"},
                                                   {"Behandlung_Wartezeit", "Wartezeit"},
                                                   {"Behandlung_Bemerkung", "Bemerkung"},
                                                   {"Behandlung_Anz_Varroen", "Anz_Varroen"}};
    const QString schlüssel = tabelle + name.mid(name.indexOf(teil) + teil.size());
    EXPECT_TRUE(felder.contains(schlüssel)) << schlüssel.toStdString();
    return zelle("select * from " + tabelle + " where Volk_ID = ", name.startsWith(u'V') ? 1 : 0,
                 felder[schlüssel], " order by Datum DESC");
  }
  QString zelle(const QString& anweisung, int zeile, const QString& feld,
                const QString& ordnung = {}) const {
    const Daten daten = DB.Lesen(anweisung + QString::number(m_volk) + ordnung);
    EXPECT_GE(daten->spaltenNummer(feld), 0) << feld.toStdString();
    if (zeile >= daten->zeilen()) return {};
    return daten->anzeige(zeile, daten->spaltenNummer(feld)).trimmed();
  }
  qint64 m_volk;
};

// Numbers stand on the right, days and texts on the left; what is longer is cut.
QString gesetzt(const QString& wert, qsizetype breite) {
  static const QRegularExpression zahl("^-?[0-9]+(,[0-9]+)?$");
  const QString links = wert.left(breite);
  return zahl.match(wert).hasMatch() ? links.rightJustified(breite) : links.leftJustified(breite);
}

class ListengeneratorBeispielbetrieb : public Betriebsfall {};

TEST_F(ListengeneratorBeispielbetrieb, JedesFeldJedesVolkesIstDasDerEinzelnenAbfrage) {
  standard();
  const QList<qint64> alle = völker("ID > 0");
  ASSERT_GT(alle.size(), 20);
  QStringList vorlage;
  for (const auto& feld : Listengenerator::datenfelder()) vorlage += feld.platzhalter;
  const QStringList zeilen = Listengenerator::zeilen(DB, vorlage, alle, 0);
  ASSERT_EQ(zeilen.size(), alle.size() * vorlage.size());
  int gefüllt = 0;
  for (qsizetype i = 0; i < zeilen.size(); ++i) {
    const auto& feld = Listengenerator::datenfelder()[i % vorlage.size()];
    const QString wert = NachDenRegeln(alle[i / vorlage.size()]).wert(feld.bezeichnung);
    const qsizetype breite = feld.platzhalter.size();
    ASSERT_EQ(zeilen[i].toStdString(), (gesetzt(wert, breite)).toStdString())
        << feld.bezeichnung.toStdString();
    if (!wert.isEmpty()) ++gefüllt;
  }
  EXPECT_GT(gefüllt, zeilen.size() / 2);
}

}  // namespace
