#include <gtest/gtest.h>

#include <QDate>
#include <QRegularExpression>
#include <cmath>
#include <limits>
#include <random>

#include "core/globals.h"
#include "data/helpers.h"
#include "platform/locale/Deutsch.h"

// What must hold for any text whatever that a user or a file gives.
namespace {

class Zufallstexte {
 public:
  explicit Zufallstexte(unsigned saat) : m_zufall(saat) {}

  QString nächster() {
    switch (m_zufall() % 5) {
      case 0:
        return aus(QStringLiteral("0123456789.,"), 14);
      case 1:
        return aus(QStringLiteral("0123456789.,-+Ee /'€kg\t"), 30);
      case 2:
        return bereich(32, 127, 40);
      case 3:
        return bereich(0, 0x10000, 40);  // surrogates that don't pair among them
      default:
        return m_zufall() % 50 == 0 ? aus(QStringLiteral("0123456789.,E"), 20000)
                                    : aus(QStringLiteral("0123."), 10);
    }
  }

  int zahl(int von, int bis) {
    return von + static_cast<int>(m_zufall() % static_cast<unsigned>(bis - von + 1));
  }

 private:
  QString aus(const QString& zeichen, unsigned höchstens) {
    QString text;
    for (auto n = m_zufall() % (höchstens + 1); n > 0; --n)
      text += zeichen[static_cast<qsizetype>(m_zufall() % static_cast<unsigned>(zeichen.size()))];
    return text;
  }
  QString bereich(unsigned von, unsigned bis, unsigned höchstens) {
    QString text;
    for (auto n = m_zufall() % (höchstens + 1); n > 0; --n)
      text += QChar(static_cast<char16_t>(von + m_zufall() % (bis - von)));
    return text;
  }

  std::mt19937 m_zufall;
};

class Eigenschaften : public testing::TestWithParam<unsigned> {
 protected:
  Eigenschaften() { TZ_Variablen::HeuteText = QStringLiteral("17.03.2026"); }
  ~Eigenschaften() override { TZ_Variablen::zurücksetzen(); }

  template <typename Prüfung>
  void fürAlle(Prüfung prüfung) {
    Zufallstexte texte(GetParam());
    for (int i = 0; i < 3000 && !HasFatalFailure(); ++i) {
      const QString text = texte.nächster();
      SCOPED_TRACE(text.toStdString());
      prüfung(text, texte);
    }
  }
};

TEST_P(Eigenschaften, GeleseneZahlenSindEndlichUndNieNegativ) {
  fürAlle([](const QString& text, Zufallstexte&) {
    const double einfach = ZahlLesen(text);
    const double doppelt = ZahlLesenDoppelt(text);
    ASSERT_TRUE(std::isfinite(einfach) && std::isfinite(doppelt));
    ASSERT_GE(einfach, 0);
    ASSERT_FALSE(std::signbit(einfach) || std::signbit(doppelt));
    ASSERT_LE(einfach, static_cast<double>(std::numeric_limits<float>::max()));
  });
}

TEST_P(Eigenschaften, FormatierteZahlenHabenImmerDieForm) {
  static const QRegularExpression form(QStringLiteral("\\A-?[0-9]+(,[0-9]+)?\\z"));
  fürAlle([](const QString& text, Zufallstexte& texte) {
    const int stellen = texte.zahl(0, 6);
    const QString zahl = ZahlFormat(text, stellen);
    ASSERT_TRUE(form.match(zahl).hasMatch()) << zahl.toStdString();
    const qsizetype komma = zahl.indexOf(u',');
    ASSERT_EQ(komma < 0 ? 0 : zahl.size() - komma - 1, stellen);
  });
}

TEST_P(Eigenschaften, FormatierenIstNachEinmalFertig) {
  fürAlle([](const QString& text, Zufallstexte&) {
    const QString einmal = ZahlFormat(text, 2);
    if (einmal.size() > 15) return;  // beyond a double's digits
    ASSERT_EQ(ZahlFormat(einmal, 2), einmal);
  });
}

TEST_P(Eigenschaften, AusgerichteteTexteHabenImmerDieBreite) {
  fürAlle([](const QString& text, Zufallstexte& texte) {
    const int breite = texte.zahl(-3, 60);
    const int erwartet = std::max(breite, 0);
    ASSERT_EQ(TextRechts(text, breite).size(), erwartet);
    ASSERT_EQ(TextLinks(text, breite).size(), erwartet);
    ASSERT_EQ(ZahlFormatBreite(text, 2, breite, texte.zahl(0, 1)).size(), erwartet);
    ASSERT_EQ(TextRechts(text, breite).trimmed(), TextLinks(text, breite).trimmed());
  });
}

TEST_P(Eigenschaften, GeleseneTexteSindBeschnittenUndOhneHochkomma) {
  fürAlle([](const QString& text, Zufallstexte&) {
    const QString gelesen = TextLesen(text);
    ASSERT_FALSE(gelesen.contains(u'\''));
    ASSERT_EQ(gelesen, gelesen.trimmed());
    ASSERT_EQ(TextLesen(gelesen), gelesen);
    ASSERT_EQ(gelesen.size(), text.trimmed().size());
  });
}

TEST_P(Eigenschaften, ErgänztesDatumIstLeerOderEinVollesGültigesDatum) {
  fürAlle([](const QString& text, Zufallstexte&) {
    const QString datum = DatumErgaenzen(text);
    if (datum.isEmpty()) return;
    ASSERT_EQ(datum.size(), 10);
    ASSERT_TRUE(IstDatum(datum));
    ASSERT_EQ(Deutsch::datumText(DatumLesen(datum)), datum);
    ASSERT_EQ(DatumErgaenzen(datum), datum);
  });
}

TEST_P(Eigenschaften, EinGültigesDatumBleibtDasselbeDatum) {
  fürAlle([](const QString& text, Zufallstexte&) {
    if (IstDatum(text)) {
      ASSERT_EQ(DatumLesen(DatumErgaenzen(text)), DatumLesen(text));
    }
  });
}

TEST_P(Eigenschaften, DatumsliteralStehtZwischenRauten) {
  fürAlle([](const QString& text, Zufallstexte&) {
    QString datum = text;
    const QString literal = SqlDatum(datum);
    ASSERT_TRUE(literal.startsWith(u'#') && literal.endsWith(u'#'));
    ASSERT_LE(literal.size(), 12);
    ASSERT_EQ(IstDatum(datum), IstDatum(text));
    if (!IstDatum(text)) {
      ASSERT_EQ(datum, text);
    }
  });
}

TEST_P(Eigenschaften, KeinHelferScheitert) {
  fürAlle([](const QString& text, Zufallstexte& texte) {
    ASSERT_LE(DatumSortiert(text).size(), 8);
    const QString jahr = JahrErgaenzen(text);
    ASSERT_TRUE(jahr.isEmpty() || jahr.size() >= 4 || jahr == text.trimmed());
    QString andere = text;
    for (char16_t c = u'0'; c <= u'9'; ++c) andere.remove(QChar(c));
    ASSERT_EQ(NurZiffern(text), andere.isEmpty());
    const qint64 ganz = GanzLesen(text);
    ASSERT_GE(ganz, std::numeric_limits<qint32>::min());
    ASSERT_LE(ganz, std::numeric_limits<qint32>::max());
    const int code = texte.zahl(-1000, 70000);
    ASSERT_TRUE(ZifferTaste(code) == 0 || ZifferTaste(code) == code);
  });
}

TEST_P(Eigenschaften, FesteZahlenHabenImmerDieBreite) {
  fürAlle([](const QString& text, Zufallstexte& texte) {
    const int breite = texte.zahl(0, 40);
    ASSERT_EQ(ZahlFest(breite, ZahlLesenDoppelt(text)).size(), breite);
  });
}

INSTANTIATE_TEST_SUITE_P(Saaten, Eigenschaften, testing::Values(1U, 22U, 333U, 4444U, 55555U));

}  // namespace
