#include <gtest/gtest.h>

#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QStack>

// How classes are written, read from their declarations.
namespace {

QStringList quellen() {
  QStringList namen;
  QDirIterator lauf(QStringLiteral(TOVA_QUELLEN "/src"), {"*.h", "*.cpp"}, QDir::Files,
                    QDirIterator::Subdirectories);
  while (lauf.hasNext()) namen << lauf.next();
  return namen;
}

QString inhalt(const QString& name) {
  QFile datei(name);
  if (!datei.open(QIODevice::ReadOnly)) return {};
  static const QRegularExpression bemerkung(QStringLiteral("//[^\n]*|\"(\\\\.|[^\"\\\\\n])*\""));
  return QString::fromUtf8(datei.readAll()).remove(bemerkung);
}

// Reads a source's text for the data members that its classes don't show to others.
class Mitglieder {
 public:
  explicit Mitglieder(const QString& text) {
    for (const QChar c : text) {
      if (c == u'{')
        öffnen();
      else if (c == u'}')
        schließen();
      else if (c == u';')
        beenden();
      else if (c != u':' || !zugriff())
        m_satz += c;
    }
  }
  QStringList namen;

 private:
  struct Ebene {
    bool klasse = false;
    bool öffentlich = true;
    bool vorgabe = false;  // the braces after a member's name
  };

  bool inKlasse() const { return !m_ebenen.isEmpty() && m_ebenen.last().klasse; }

  void öffnen() {
    static const QRegularExpression art(
        QStringLiteral("\\b(class|struct|union|enum|namespace)\\b"));
    static const QRegularExpression vorlage(QStringLiteral("\\btemplate\\s*<[^{]*?>"));
    const QString kopf = QString(m_satz).remove(vorlage).trimmed();
    const auto treffer = art.match(kopf);
    if (inKlasse() && !treffer.hasMatch() && !kopf.contains(u'(')) {
      m_ebenen.push({false, true, true});
      m_satz += u'{';
      return;
    }
    Ebene neu;
    neu.klasse = treffer.captured(1) == u"class" && !kopf.startsWith(u"enum");
    neu.öffentlich = !neu.klasse;
    m_ebenen.push(neu);
    m_satz.clear();
  }
  void schließen() {
    if (m_ebenen.isEmpty()) return;
    if (m_ebenen.pop().vorgabe)
      m_satz += u'}';
    else
      m_satz.clear();
  }
  void beenden() {
    if (inKlasse() && !m_ebenen.last().öffentlich) nimm(m_satz.trimmed());
    m_satz.clear();
  }
  bool zugriff() {
    static const QRegularExpression wort(QStringLiteral("(^|\\s)(public|private|protected)\\z"));
    const auto treffer = wort.match(m_satz);
    if (!inKlasse() || !treffer.hasMatch()) return false;
    m_ebenen.last().öffentlich = treffer.captured(2) == u"public";
    m_satz.clear();
    return true;
  }
  void nimm(QString satz) {
    static const QRegularExpression anderes(
        QStringLiteral("\\A(using|friend|enum|static|class|struct|typedef|Q_|constexpr)"));
    static const QRegularExpression funktion(QStringLiteral("<[^;=]*\\([^;=]*\\)[^;=]*>"));
    static const QRegularExpression name(QStringLiteral("(\\w+)\\s*(\\[[^\\]]*\\]\\s*)*\\z"),
                                         QRegularExpression::UseUnicodePropertiesOption);
    if (satz.isEmpty() || anderes.match(satz).hasMatch()) return;
    satz.remove(funktion);  // std::function<void(int)>
    satz = satz.section(u'=', 0, 0).section(u'{', 0, 0).trimmed();
    if (satz.contains(u'(')) return;
    if (const auto treffer = name.match(satz); treffer.hasMatch()) namen << treffer.captured(1);
  }

  QString m_satz;
  QStack<Ebene> m_ebenen;
};

TEST(Klassen, DerLeserFindetMitgliederUndNurSie) {
  const Mitglieder gelesen(
      "class A : public B {\n public:\n  int zahl;\n  A();\n private:\n  void tun(int n);\n"
      "  std::function<void(int)> rufer;\n  std::array<int*, 2> feld{};\n  int* m_gut = nullptr;\n"
      "  int bogen[2] = {};\n  static int gezählt;\n  struct C {\n    int innen;\n  };\n"
      "  int wert() const { return zahl; }\n  enum D { eins, zwei };\n};\nint global;\n");
  EXPECT_EQ(gelesen.namen, QStringList({"rufer", "feld", "m_gut", "bogen"}));
}

TEST(Klassen, WasEinFensterFürSichBehältTrägtDieVorsilbe) {
  int gesehen = 0;
  for (const QString& datei : quellen()) {
    if (!datei.contains(u"/forms/") && !datei.contains(u"/controls/")) continue;
    for (const QString& name : Mitglieder(inhalt(datei)).namen) {
      ++gesehen;
      EXPECT_TRUE(name.startsWith(u"m_")) << datei.toStdString() << ": " << name.toStdString();
    }
  }
  EXPECT_GT(gesehen, 200);
}

// Opening, loading and closing have one course, that of Formular.
TEST(Klassen, KeineFormHatEinenEigenenAblauf) {
  static const QRegularExpression ablauf(QStringLiteral("\\bvoid (zeigen|laden)\\(\\)"));
  int formen = 0;
  for (const QString& datei : quellen()) {
    if (!datei.endsWith(u".h")) continue;
    const QString text = inhalt(datei);
    static const QRegularExpression form(QStringLiteral(": public \\w*[Ff]ormular \\{"));
    if (!form.match(text).hasMatch()) continue;
    ++formen;
    EXPECT_FALSE(ablauf.match(text).hasMatch()) << datei.toStdString();
  }
  EXPECT_GE(formen, 14);
}

}  // namespace
