// The guided tour: drives the real forms through a beekeeper's day and leaves a picture of each.
// tools/bilder takes the handbook's pictures from it.
// usage: tour FOLDER_FOR_PICTURES

#include <QApplication>
#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>
#include <QTemporaryFile>
#include <cstdio>

#include "Begleiter.h"
#include "Betrieb.h"
#include "Bienenjahr.h"
#include "Rueckschau.h"
#include "core/globals.h"
#include "mainform/forms/TA_TOVA.h"
#include "output/forms/TA_Zwischenliste.h"
#include "platform/controls/Gestaltung.h"
#include "platform/controls/Grid.h"

namespace {

const QDate heute(2026, 6, 20);

// Opens the program on a folder, walks the steps and closes it. False when it didn't come to the
// end.
bool besuchen(const QString& ordner, Begleiter& begleiter) {
  bool fertig = false;
  {
    QFile::copy(QCoreApplication::applicationDirPath() + "/../tova/HILFETOVA.HLP",
                ordner + "/HILFETOVA.HLP");
    TA_TOVA hauptformular;
    if (!hauptformular.laden({ordner, heute, [] { return true; }})) return false;
    hauptformular.resize(1366, 768);
    QEventLoop schleife;
    begleiter.schritt("TA_TOVA", [&](QWidget* fenster) {
      fenster->close();
      fertig = true;
      schleife.quit();
    });
    begleiter.starten();
    hauptformular.show();
    schleife.exec();
  }
  TZ_Variablen::DB.Close();
  TZ_Variablen::Arbeitsbereich.Close();
  return fertig;
}

void volkEintippen(QWidget* form, const QString& name, const QString& rasse, const QString& ort) {
  Hand::tippen(form, "sevt_1", name);
  Hand::tippen(form, "sevt_2", rasse);
  Hand::tippen(form, "sevt_3", ort);
  Hand::tippen(form, "sevt_7", "Zander");
  Hand::tippen(form, "sevt_10", "1.4");
  Hand::tippen(form, "sevt_5", "weiß");
}

// From the empty folder to colonies, an inspection, a harvest over marked colonies, the panel.
bool ersterTag(const QString& bilder) {
  QTemporaryDir ordner;
  Begleiter tag(bilder);
  tag.schritt("TH_Hilfe_Wieanfangen", [&](QWidget* form) {
    tag.fotografieren(form, "01_erste_schritte");
    Hand::drücken(form, "schritt_2");
  });
  const QStringList namen = {"Auguste", "Berta", "Clothilde", "Dorothea"};
  for (const QString& name : namen)
    tag.schritt("TV_Neues_Volk", [&, name](QWidget* form) {
      volkEintippen(form, name, "Carnica", "Hausgarten");
      if (name == namen.first()) tag.fotografieren(form, "02_neues_volk");
      Hand::drücken(form, "oknächster_0");
    });
  tag.schritt("TV_Neues_Volk", [](QWidget* form) { Hand::drücken(form, "cmdabbrechen"); });
  tag.schritt("TH_Hilfe_Wieanfangen", [](QWidget* form) { form->close(); });
  // The work plan has made appointments for the new colonies; some are due soon.
  tag.schritt("TV_Starttermine", [&](QWidget* form) {
    tag.fotografieren(form, "02_offene_termine");
    form->close();
  });
  tag.schritt("TA_TOVA", [&](QWidget* form) {
    tag.fotografieren(form, "03_vier_voelker");
    Hand::markieren(form, "datali", {0});
    Hand::wählen(form, "XE_stockkarte");
  });
  tag.schritt("TE_Eingabe", [&](QWidget* form) {
    for (int slot = 1; slot <= 9; ++slot)
      Hand::tippen(form, QStringLiteral("sevt_%1").arg(slot), "3,5");
    Hand::tippen(form, "sevt_12", "4");
    Hand::tippen(form, "sevt_13", "6");
    Hand::tippen(form, "sevt_14", "1");
    Hand::tippen(form, "sevt_18", "2");
    Hand::tippen(form, "sevt_27", "Königin gesehen");
    tag.fotografieren(form, "04_durchsicht");
    Hand::drücken(form, "neu_0");
    tag.fotografieren(form, "05_durchsicht_gebucht");
    Hand::drücken(form, "cmdschließen");
  });
  tag.schritt("TA_TOVA", [&](QWidget* form) {
    Hand::markieren(form, "datali", {0, 1, 2});
    Hand::wählen(form, "XE_honigernte");
  });
  tag.schritt("TE_Eingabe", [&](QWidget* form) {
    Hand::tippen(form, "sevt_1", "12,5");
    Hand::tippen(form, "sevt_2", "Frühtracht");
    Hand::tippen(form, "sevt_3", "I");
    Hand::tippen(form, "sevt_7", "2026/1");
    tag.fotografieren(form, "06_honigernte");
    Hand::drücken(form, "neu_0");
    tag.fotografieren(form, "08_honigernte_gebucht");
    Hand::drücken(form, "cmdschließen");
  });
  tag.schritt("frage", [&](QWidget* form) {
    tag.fotografieren(form, "07_drei_voelker");
    Hand::drücken(form, "ja");
  });
  tag.schritt("TA_TOVA", [&](QWidget* form) {
    Hand::drücken(form, "cmdok");
    tag.fotografieren(form, "09_volk_info");
  });
  return besuchen(ordner.path(), tag);
}

// The main form with all it shows of one colony, its panel as a printable list, the colony's own
// form.
void hauptformularZeigen(Begleiter& tag) {
  tag.schritt("TA_TOVA", [&](QWidget* form) {
    Hand::markieren(form, "datali", {2});
    Hand::drücken(form, "kon1");  // the picture, and the panel with it
    tag.fotografieren(form, "hauptformular");
    Hand::drücken(form, "linksrechts");
    tag.fotografieren(form, "hauptformular_breites_textfeld");
    Hand::drücken(form, "linksrechts");
    Hand::drücken(form, "comdrucken");
  });
  tag.schritt("TA_Textausgabe", [&](QWidget* form) {
    tag.fotografieren(form, "textausgabe");
    Hand::drücken(form, "abbv");
  });
  tag.schritt("TA_TOVA", [](QWidget* form) { Hand::wählen(form, "XV_volkändern"); });
  tag.schritt("TV_Neues_Volk", [&](QWidget* form) {
    tag.fotografieren(form, "volk_aendern_1_stammdaten");
    Hand::reiterWählen(form, "reiter", 1);
    tag.fotografieren(form, "volk_aendern_2_beute");
    Hand::reiterWählen(form, "reiter", 2);
    tag.fotografieren(form, "volk_aendern_3_bewertung");
    Hand::drücken(form, "cmdabbrechen");
  });
}

void eingabenZeigen(Begleiter& tag) {
  static const QStringList einträge = {"XE_stockkarte",       "XE_honigernte",      "XE_wachsernte",
                                       "XE_pollenernte",      "XE_sonstigeernte",   "XE_arbeiten",
                                       "XE_wanderung",        "XE_gewichtsmessung", "XE_behandlung",
                                       "XE_Königinenwechsel", "XE_Notizen"};
  for (const QString& eintrag : einträge) {
    tag.schritt("TA_TOVA", [eintrag](QWidget* form) { Hand::wählen(form, eintrag); });
    tag.schritt("TE_Eingabe", [&tag, eintrag](QWidget* form) {
      tag.fotografieren(form, "eingabe_" + eintrag.mid(3).toLower().replace(u'ö', "oe"));
      Hand::drücken(form, "cmdschließen");
    });
  }
}

// Selects the colonies of one place and marks them.
void selektierenUndMarkieren(Begleiter& tag) {
  tag.schritt("TA_TOVA", [](QWidget* form) { Hand::wählen(form, "XV_völkerselektieren"); });
  tag.schritt("TV_Selektieren", [&](QWidget* form) {
    Hand::tippen(form, "sevt_2", "Buckfast");
    Hand::drücken(form, "entselekt_4");
    tag.fotografieren(form, "selektieren");
    Hand::drücken(form, "schliessen");
  });
  tag.schritt("frage", [&](QWidget* form) {
    tag.fotografieren(form, "selektierte_markieren");
    Hand::drücken(form, "ja");
  });
  tag.schritt("hinweis", [](QWidget* form) { Hand::drücken(form, "ok"); });
  tag.bild("TA_TOVA", "hauptformular_markiert");
}

void einstellungenZeigen(Begleiter& tag) {
  tag.schritt("TA_TOVA", [](QWidget* form) { Hand::wählen(form, "O_Einstellungen"); });
  tag.schritt("TO_Einstellungen", [&](QWidget* form) {
    static const QStringList reiter = {"allgemein", "eingabe", "werte", "auswertungen", "felder"};
    for (int i = 0; i < reiter.size(); ++i) {
      Hand::reiterWählen(form, "reiter", i);
      tag.fotografieren(form, QStringLiteral("einstellungen_%1_%2").arg(i + 1).arg(reiter[i]));
    }
    Hand::drücken(form, "cmdabbrechen");
  });
}

// The main list itself, which no entry hands on: the longest one there is.
void listeWeitergeben(Begleiter& tag) {
  tag.schritt("TA_TOVA",
              [](QWidget* form) { zwischenlisteZeigen(form, *form->findChild<Grid*>("datali")); });
  tag.schritt("TA_Zwischenliste", [&](QWidget* form) {
    tag.fotografieren(form, "zwischenliste");
    Hand::drücken(form, "comtext");
  });
  tag.schritt("TA_Textausgabe", [&](QWidget* form) {
    tag.fotografieren(form, "textausgabe_liste");
    Hand::drücken(form, "abbv");
  });
  tag.schritt("TA_Zwischenliste", [](QWidget* form) { Hand::drücken(form, "cmdschließen"); });
}

void hilfeLesen(Begleiter& tag) {
  tag.schritt("TA_TOVA", [](QWidget* form) { Hand::wählen(form, "hilfestartmenue"); });
  tag.schritt("TH_Hilfe", [&](QWidget* form) {
    tag.fotografieren(form, "hilfe");
    form->close();
  });
}

// The same forms with three seasons behind them.
bool imDrittenJahr(const QString& bilder) {
  QTemporaryDir ordner;
  Betriebsgröße größe;
  größe.heute = heute;
  betriebAnlegen(ordner.path(), größe);
  TZ_Variablen::DB.Close();
  TZ_Variablen::Arbeitsbereich.Close();

  Begleiter tag(bilder);
  tag.schritt("TV_Starttermine", [&](QWidget* form) {
    tag.fotografieren(form, "offene_termine");
    form->close();
  });
  hauptformularZeigen(tag);
  eingabenZeigen(tag);
  selektierenUndMarkieren(tag);
  planungZeigen(tag);
  standorteZeigen(tag);
  handelZeigen(tag);
  auswertungenZeigen(tag);
  einstellungenZeigen(tag);
  listeWeitergeben(tag);
  hilfeLesen(tag);
  return besuchen(ordner.path(), tag);
}

// The offscreen screen is small and square; the tour wants the one that most people have.
void bildschirmEinrichten(QTemporaryFile& datei) {
  if (qgetenv("QT_QPA_PLATFORM") != "offscreen" || !datei.open()) return;
  datei.write(R"({"screens":[{"name":"tour","x":0,"y":0,"width":1366,"height":768,"logicalDpi":96,)"
              R"("logicalBaseDpi":96,"dpr":1}]})");
  datei.close();
  qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + datei.fileName().toLocal8Bit());
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fprintf(stderr, "usage: tour FOLDER_FOR_PICTURES\n");
    return 2;
  }
  QTemporaryFile bildschirm;
  bildschirmEinrichten(bildschirm);
  QApplication app(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  gestalten(app);
  const QString bilder = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
  return ersterTag(bilder) && imDrittenJahr(bilder) ? 0 : 1;
}
