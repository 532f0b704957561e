#include "evaluations/forms/TW_Grafiken.h"

#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QRadioButton>

#include "colonies/Testbetrieb.h"
#include "gemeinsam/Bildschirm.h"
#include "gemeinsam/Druckdialog.h"
#include "gemeinsam/Formularprobe.h"
#include "gemeinsam/Pdf.h"
#include "platform/controls/Dateidialoge.h"
#include "platform/controls/Diagramm.h"

namespace {

using Art = Diagramminhalt::Art;
using Werte = Diagramminhalt::Werte;

class TWGrafiken : public Formularprobe<TW_Grafiken, Testbetrieb> {
 protected:
  void SetUp() override {
    Formularprobe::SetUp();
    for (const char* ort : {"Hausgarten", "Hausgarten", "Mühlbach"}) neuesVolk("1", "X", ort);
    honig(QDate(2006, 6, 5), "Raps", 12.5);
    honig(QDate(2006, 7, 5), "Linde", 30);
    honig(QDate(2006, 7, 6), "Wald", 30);
    honig(QDate(2004, 7, 6), "Heide", 8);
  }

  static void honig(QDate tag, const QString& sorte, double kg) {
    db().Execute("insert into Honigernte(Datum, Honigsorte, Menge_kg) values (?, ?, ?)",
                 {tag, sorte, kg});
  }
  const Diagramminhalt& bild() { return kind<Diagramm>("graph")->inhalt(); }
  std::string punkte() {
    QStringList alle;
    for (const auto& punkt : bild().punkte) alle += punkt.name + u' ' + QString::number(punkt.wert);
    return alle.join(", ").toStdString();
  }
  std::string meldung() { return kind<QLabel>("meldung")->text().toStdString(); }
  QString pfad(const QString& name) const { return TZ_Variablen::AppPfad + name; }
};

TEST_F(TWGrafiken, ÖffnetMitDenVölkernAnIhrenStandorten) {
  öffne();
  EXPECT_EQ(form->windowTitle(), "Grafische Auswertungen");
  EXPECT_EQ(punkte(), "Hausgarten 2, Mühlbach 1");
  EXPECT_EQ(bild().titel, "Auswertung (Völker an Standorten)");
  EXPECT_EQ(bild().fuß, "Stand: 20.06.2006");
  EXPECT_EQ(bild().art, Art::Torte);
  EXPECT_FALSE(kind("t")->isEnabled());
}

TEST_F(TWGrafiken, JedeÄnderungWirdSofortGezeichnet) {
  öffne();
  klicke("auswahl_2");
  EXPECT_EQ(punkte(), "2004 8, 2006 72.5");
  EXPECT_EQ(bild().titel, "Auswertung (Honigernten je Jahr (kg)) alle Jahre");
  klicke("opti3d_1");
  EXPECT_EQ(bild().art, Art::Torte3D);
  klicke("optitorte_1");
  EXPECT_EQ(bild().art, Art::Balken);
  klicke("optitorte_0");
  EXPECT_EQ(bild().art, Art::Torte3D);
  klicke("opti3d_0");
  EXPECT_EQ(bild().art, Art::Torte);
  klicke("auswahl_3");
  EXPECT_EQ(punkte(), "");
  EXPECT_EQ(bild().titel, "Auswertung (Wachsernte je Jahr (kg)) alle Jahre");
}

TEST_F(TWGrafiken, DasJahrGiltBeimVerlassenDesFeldes) {
  öffne();
  klicke("auswahl_1");
  EXPECT_EQ(inhalt("t"), "2006");
  EXPECT_EQ(punkte(), "Linde 30, Raps 12.5, Wald 30");
  tippe("t", "4");
  EXPECT_EQ(punkte(), "Linde 30, Raps 12.5, Wald 30");
  QTest::keyClick(feld("t"), Qt::Key_Tab);
  EXPECT_EQ(inhalt("t"), "2004");
  EXPECT_EQ(punkte(), "Heide 8");
  EXPECT_EQ(bild().titel, "Auswertung (Honigernte nach Sorten) für 2004");
}

TEST_F(TWGrafiken, DieEingabetasteImJahrSchließtNichtUndDrucktNicht) {
  öffne();
  klicke("auswahl_1");
  tippe("t", "2004");
  QTest::keyClick(feld("t"), Qt::Key_Return);
  EXPECT_EQ(punkte(), "Heide 8");
  EXPECT_TRUE(offen());
}

TEST_F(TWGrafiken, AngebotenWerdenDieJahreMitHonig) {
  öffne();
  EXPECT_EQ(feld("t")->liste(), QStringList({"2006", "2004"}));
}

TEST_F(TWGrafiken, EinJahrOhneErnteZeichnetNichtsUndMeldetNichts) {
  öffne();
  klicke("auswahl_1");
  tippe("t", "1999");
  QTest::keyClick(feld("t"), Qt::Key_Tab);
  EXPECT_EQ(punkte(), "");
  EXPECT_EQ(bild().titel, "Auswertung (Honigernte nach Sorten) für 1999");
  tippe("t", "206");
  QTest::keyClick(feld("t"), Qt::Key_Tab);
  EXPECT_EQ(inhalt("t"), "");
  EXPECT_EQ(punkte(), "");
}

TEST_F(TWGrafiken, VonGleichenWirdDasErsteHerausgezogenUndNurInDerTorte) {
  öffne();
  klicke("auswahl_1");
  EXPECT_EQ(bild().herausgezogen, -1);
  klicke("kongrosserteil");
  EXPECT_EQ(bild().herausgezogen, 0);
  klicke("optitorte_1");
  EXPECT_EQ(bild().herausgezogen, -1);
  EXPECT_FALSE(kind("kongrosserteil")->isEnabled());
}

TEST_F(TWGrafiken, ProzenteMengenOderKeineWerte) {
  öffne();
  EXPECT_EQ(bild().werte, Werte::Mengen);
  klicke("konwertanzeige_0");
  EXPECT_EQ(bild().werte, Werte::Prozent);
  EXPECT_FALSE(kind<QCheckBox>("konwertanzeige_1")->isChecked());
  klicke("konwertanzeige_1");
  EXPECT_EQ(bild().werte, Werte::Mengen);
  EXPECT_FALSE(kind<QCheckBox>("konwertanzeige_0")->isChecked());
  klicke("konwertanzeige_1");
  EXPECT_EQ(bild().werte, Werte::Keine);
}

TEST_F(TWGrafiken, DieWahlBleibtUndDieDatenSindNeu) {
  öffne();
  klicke("auswahl_1");
  klicke("optitorte_1");
  klicke("schließen");
  honig(QDate(2006, 8, 1), "Heide", 5);
  form->laden();
  EXPECT_EQ(punkte(), "Heide 5, Linde 30, Raps 12.5, Wald 30");
  EXPECT_EQ(bild().art, Art::Balken);
}

TEST_F(TWGrafiken, DieZwischenablageBekommtEinBild) {
  QApplication::clipboard()->clear();
  öffne();
  klicke("zwischenablage");
  EXPECT_EQ(QApplication::clipboard()->image(), kind<Diagramm>("graph")->bild());
  EXPECT_EQ(meldung(), "Die Grafik liegt in der Zwischenablage.");
  klicke("konwertanzeige_0");
  EXPECT_EQ(meldung(), "");
}

TEST_F(TWGrafiken, GedrucktWirdEinBlatt) {
  öffne();
  const QString datei = pfad("grafik.pdf");
  {
    const Druckdialog dialog(datei);
    klicke("drucken");
  }
  const Pdf pdf(datei);
  EXPECT_EQ(pdf.seitenzahl(), 1);
  EXPECT_TRUE(pdf.querformat());
  EXPECT_TRUE(pdf.zeilen(1).join(' ').contains("Mühlbach"));
}

TEST_F(TWGrafiken, SpeichernNimmtDieEndungUndSagtWohin) {
  öffne();
  Dateidialoge::Probe dialoge;
  dialoge.antwort("Grafik speichern", pfad("bild"));
  klicke("speichern");
  EXPECT_EQ(QImage(pfad("bild.png")), kind<Diagramm>("graph")->bild());
  EXPECT_EQ(meldung(),
            ("Gespeichert: " + QDir::toNativeSeparators(pfad("bild.png"))).toStdString());
  dialoge.antwort(pfad("bild.svg"));
  klicke("speichern");
  EXPECT_TRUE(QFile::exists(pfad("bild.svg")));
  dialoge.antwort(QString());
  klicke("speichern");
  EXPECT_EQ(dialoge.fehler().toStdString(), "");
}

TEST_F(TWGrafiken, EinFehlerBeimSpeichernWirdGesagt) {
  öffne();
  Dateidialoge::Probe dialoge;
  dialoge.antwort(pfad("weg/bild.png"));
  boxen.hinweisMit("weg");
  klicke("speichern");
  EXPECT_EQ(meldung(), "");
  EXPECT_EQ(dialoge.fehler().toStdString(), "");
}

TEST_F(TWGrafiken, OhneVölkerUndErntenBleibtAllesLeerUndOhneMeldung) {
  db().Execute("delete from Bienenvolk");
  db().Execute("delete from Honigernte");
  öffne();
  for (int i = 0; i < 5; ++i) {
    klicke(QString("auswahl_%1").arg(i));
    EXPECT_EQ(punkte(), "");
  }
}

// With TOVA_BILDER set to a folder the form is saved there as a picture.
class TWGrafikenBild : public TWGrafiken, public testing::WithParamInterface<int> {
  const Schriftgröße m_schrift{GetParam()};
};

TEST_P(TWGrafikenBild, PasstAufDenBildschirmUndJederKnopfIstLesbar) {
  öffne();
  passtAufKleinenSchirm(*form);
  for (const char* art : {"opti3d_1", "optitorte_1"}) {
    klicke(art);
    for (const QSize größe : {QSize(1024, 700), QSize(1366, 728)}) {
      form->resize(größe);
      QTest::qWait(1);
      knöpfeSindLesbar(*form);
      bildAblegen(*form, QString("grafiken_%1_%2_%3").arg(art).arg(größe.width()).arg(GetParam()));
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Schriftgrößen, TWGrafikenBild, testing::Values(100, 150));

}  // namespace
