// The medium fails while the form is at work: no room left, or the database can't be written any
// more. The message says so, the entries stay, the list shows what is saved, and the same Neu works
// once the cause is gone.
#include <optional>

#include "Eingabeprobe.h"
#include "gemeinsam/AndererBenutzer.h"
#include "platform/database/verbindung/Verbindung.h"

namespace {

using namespace TZ_Variablen;

class EingabeDatenträger : public Eingabeprobe {
 protected:
  Verbindung& verbindung() { return *Verbindung::zu(DatenbankPfad); }
  // From now on the database can grow by two pages only.
  void fastVoll() {
    const int seiten = verbindung().steuere("pragma page_count").toInt();
    verbindung().steuere("pragma max_page_count = " + QByteArray::number(seiten + 2));
  }
  void wiederPlatz() { verbindung().steuere("pragma max_page_count = 1000000"); }
  QString keinPlatz() {
    return "Auf dem Datenträger ist kein Platz mehr für die Datenbank \"" + DatenbankPfad +
           "\". Bitte schaffen Sie Platz und wiederholen Sie den Vorgang. Von diesem Vorgang wurde "
           "nichts gespeichert.";
  }

  // One booking of the first colony is saved; then, with more than one colony to book, all are
  // marked and the next booking is typed.
  void bucheUndTippe(int völker) {
    DB.Sammelschreiben([&] {
      for (int nr = 4; nr <= völker; ++nr) volk(QString::number(nr), "Volk", "Heide");
    });
    öffne(5);
    tippe("Arbeitsart", "vorher");
    klicke("neu_0");
    if (völker > 1) {
      volkli()->setFocus();
      taste(volkli(), Qt::Key_A, Qt::ControlModifier);
      QTest::qWait(20);
    }
    ASSERT_EQ(liste->markierteZeilen().size(), völker);
    tippe("Datum", "14.06.2026");
    tippe("Arbeitsart", "Waben schneiden");
    tippe("Zeit (h)", "0,25");
    tippe("Bemerkung", "alle");
  }
  void prüfeEingabeSteht(int völker) {
    EXPECT_EQ(boxen.fehler(), "");
    EXPECT_EQ(text("Datum"), "14.06.2026");
    EXPECT_EQ(text("Arbeitsart"), "Waben schneiden");
    EXPECT_EQ(text("Zeit (h)"), "0,25");
    EXPECT_EQ(text("Bemerkung"), "alle");
    EXPECT_EQ(liste->markierteZeilen().size(), völker);
    EXPECT_EQ(volkli()->markierteZeilen().size(), völker);
    EXPECT_FALSE(SammelFolgevolk);
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
    EXPECT_TRUE(volkli()->isEnabled());
  }
  void prüfeNurFrüheresGespeichert() {
    EXPECT_EQ(wert("select Arbeitsart from Arbeiten"), "vorher");
    EXPECT_EQ(anzahl("Arbeiten"), 1);
    ASSERT_EQ(li()->zeilen(), 1);
    EXPECT_EQ(li()->zelle(0, "Arbeitsart"), "vorher");
  }
  // The second try, without typing anything anew.
  void prüfeNeuerAnlauf(int völker) {
    boxen.frageMit(QString::number(völker) + " Völker markiert", true);
    klicke("neu_0");
    EXPECT_EQ(boxen.fehler(), "");
    EXPECT_EQ(anzahl("Arbeiten"), völker + 1);
    EXPECT_EQ(wert("select count(*) as n from Arbeiten where Arbeitsart = 'Waben schneiden' and "
                   "Bemerkung = 'alle' and Zeit_h = 0.25")
                  .toInt(),
              völker);
    EXPECT_EQ(li()->zeilen(), 2);
    EXPECT_EQ(verbindung().steuere("pragma integrity_check"), "ok");
    form->close();
  }
};

TEST_F(EingabeDatenträger, VollerDatenträgerImLaufÜberDreihundertVölker) {
  bucheUndTippe(300);
  fastVoll();
  boxen.frageMit("300 Völker markiert", true).hinweis(keinPlatz());
  klicke("neu_0");
  prüfeEingabeSteht(300);
  prüfeNurFrüheresGespeichert();
  wiederPlatz();
  prüfeNeuerAnlauf(300);
}

TEST_F(EingabeDatenträger, VollerDatenträgerZweimalHintereinanderVerliertNichts) {
  bucheUndTippe(300);
  fastVoll();
  for (int versuch = 0; versuch < 2; ++versuch) {
    boxen.frageMit("300 Völker markiert", true).hinweis(keinPlatz());
    klicke("neu_0");
    prüfeEingabeSteht(300);
    prüfeNurFrüheresGespeichert();
  }
  wiederPlatz();
  prüfeNeuerAnlauf(300);
}

// Reading and looking into it is allowed to all, writing to nobody.
constexpr QFileDevice::Permissions NurLesen = QFileDevice::ReadOwner | QFileDevice::ReadGroup |
                                              QFileDevice::ReadOther | QFileDevice::ExeOwner |
                                              QFileDevice::ExeGroup | QFileDevice::ExeOther;

// Protects the database and its folder, from the administrator too, while it lives.
class Schreibschutz {
 public:
  Schreibschutz() : m_pfade{DatenbankPfad, AppPfad} {
    for (const QString& pfad : m_pfade) QFile::setPermissions(pfad, NurLesen);
    m_niemand.emplace();
  }
  ~Schreibschutz() {
    m_niemand.reset();
    for (const QString& pfad : m_pfade)
      QFile::setPermissions(pfad, NurLesen | QFileDevice::WriteOwner);
  }
  Schreibschutz(const Schreibschutz&) = delete;
  Schreibschutz& operator=(const Schreibschutz&) = delete;

  bool gilt() const { return !m_niemand->darfAlles(); }

 private:
  const QStringList m_pfade;
  std::optional<AndererBenutzer> m_niemand;
};

TEST_F(EingabeDatenträger, DatenbankUndOrdnerWerdenWährendDerArbeitSchreibgeschützt) {
  bucheUndTippe(3);
  {
    const Schreibschutz schutz;
    ASSERT_TRUE(schutz.gilt());
    boxen.frageMit("3 Völker markiert", true)
        .hinweisMit("Die Datenbank \"" + DatenbankPfad +
                    "\" kann nicht beschrieben werden. Bitte prüfen Sie, ob die Datei oder ihr "
                    "Ordner schreibgeschützt ist.");
    klicke("neu_0");
    prüfeEingabeSteht(3);
    prüfeNurFrüheresGespeichert();
  }
  prüfeNeuerAnlauf(3);
}

TEST_F(EingabeDatenträger, SchreibgeschütztMisslingenAuchÄndernUndLöschenOhneVerlust) {
  bucheUndTippe(1);
  {
    const Schreibschutz schutz;
    ASSERT_TRUE(schutz.gilt());
    boxen.hinweisMit("kann nicht beschrieben werden");
    klicke("neu_1");
    EXPECT_EQ(boxen.fehler(), "");
    EXPECT_EQ(text("Arbeitsart"), "Waben schneiden");
    boxen.hinweisMit("kann nicht beschrieben werden");
    klicke("löschen");
    prüfeNurFrüheresGespeichert();
  }
  klicke("neu_1");
  EXPECT_EQ(li()->zelle(0, "Arbeitsart"), "Waben schneiden");
}

TEST_F(EingabeDatenträger, SchreibgeschütztSchließtDieFormMitMeldung) {
  bucheUndTippe(1);
  const Schreibschutz schutz;
  ASSERT_TRUE(schutz.gilt());
  boxen.hinweisMit("kann nicht beschrieben werden");
  klicke("cmdschließen");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_FALSE(form->isVisible());
}

TEST_F(EingabeDatenträger, EineMaskeLässtSichSchreibgeschütztNichtSichernUndDieEingabeBleibt) {
  bucheUndTippe(1);
  const Schreibschutz schutz;
  ASSERT_TRUE(schutz.gilt());
  boxen.hinweisMit("TOVA_TE_EINGABE_STD5.TV2");
  klicke("standard_0");
  EXPECT_EQ(boxen.fehler(), "");
  EXPECT_EQ(text("Arbeitsart"), "Waben schneiden");
  boxen.hinweisMit("kann nicht beschrieben werden");  // the colonies' fields, on closing
  form->close();
}

}  // namespace
