#include "VelmLocale.h"

#include <QFile>
#include <QLocale>
#include <QMap>
#include <QMessageLogger>
#include <QtGlobal>

namespace {

const char* const grgszLanguages[] = {
    "enu", "cht", "chs", "jpn", "deu", "krn", "fra", "ita", "esn", "ptb",   "rus",
    "dan", "nor", "sve", "nld", "plk", "hun", "ptg", "trk", "csy", nullptr,
};
constexpr int kLanguageCount = sizeof(grgszLanguages) / sizeof(grgszLanguages[0]) - 1;

const QString qstrLanguageFallSafe = QStringLiteral("enu");

// The debug lines carry a fixed file name and fixed line numbers instead of
// __FILE__ and __LINE__, so they read the same whatever the build layout and
// however this file is edited.
constexpr char kLogFile[] = "../libcommon/VelmLocale";
constexpr char kLogCategory[] = "default";
constexpr char kValueFormat[] = "%s:%d %s=[%s] ";
constexpr char kValueBreakFormat[] = "%s:%d %s=[%s\n] ";
constexpr int kLocaleLine = 64;
constexpr int kLocaleAgainLine = 80;
constexpr int kChosenLine = 138;
constexpr int kInstalledLine = 161;

void LogValue(int line, const char* function, const char* format, const char* label, const QString& value)
{
    QMessageLogger(kLogFile, line, function, kLogCategory)
        .debug(format, kLogFile, line, label, qPrintable(value));
}

// Both lists end with a null string.
bool IsListed(const QString& localeLower, const QString* list)
{
    for (int i = 0; !list[i].isNull(); ++i) {
        if (localeLower == list[i])
            return true;
    }
    return false;
}

QMap<QString, QString> LanguagePartMap()
{
    QMap<QString, QString> map;
    map.insert(QStringLiteral("en"), QStringLiteral("enu"));
    map.insert(QStringLiteral("zh"), QStringLiteral("chs"));
    map.insert(QStringLiteral("ja"), QStringLiteral("jpn"));
    map.insert(QStringLiteral("de"), QStringLiteral("deu"));
    map.insert(QStringLiteral("ko"), QStringLiteral("krn"));
    map.insert(QStringLiteral("fr"), QStringLiteral("fra"));
    map.insert(QStringLiteral("it"), QStringLiteral("ita"));
    map.insert(QStringLiteral("es"), QStringLiteral("esn"));
    map.insert(QStringLiteral("pt"), QStringLiteral("ptb"));
    map.insert(QStringLiteral("ru"), QStringLiteral("rus"));
    map.insert(QStringLiteral("da"), QStringLiteral("dan"));
    map.insert(QStringLiteral("no"), QStringLiteral("nor"));
    map.insert(QStringLiteral("nb"), QStringLiteral("nor"));
    map.insert(QStringLiteral("nn"), QStringLiteral("nor"));
    map.insert(QStringLiteral("sv"), QStringLiteral("sve"));
    map.insert(QStringLiteral("nl"), QStringLiteral("nld"));
    map.insert(QStringLiteral("pl"), QStringLiteral("plk"));
    map.insert(QStringLiteral("hu"), QStringLiteral("hun"));
    map.insert(QStringLiteral("tr"), QStringLiteral("trk"));
    map.insert(QStringLiteral("cs"), QStringLiteral("csy"));
    return map;
}

}  // namespace

QString VelmLocale::languageForLocaleName(const QString& localeName)
{
    const QString qstrLocaleLower = localeName.toLower();
    // Traditional Chinese and European Portuguese share their language part
    // with another language, so only the whole name tells them apart.
    const QString rgqstrTraditionalChinese[] = {QStringLiteral("zh_tw"), QStringLiteral("zh_hk"),
                                                QStringLiteral("zh_mo"), QString()};
    const QString rgqstrPortugal[] = {QStringLiteral("pt"), QStringLiteral("pt_pt"), QString()};

    if (IsListed(qstrLocaleLower, rgqstrTraditionalChinese))
        return QStringLiteral("cht");
    if (IsListed(qstrLocaleLower, rgqstrPortugal))
        return QStringLiteral("ptg");

    QString qstrLanguagePart = qstrLocaleLower;
    const int underscore = qstrLanguagePart.indexOf(QLatin1Char('_'));
    if (underscore >= 0)
        qstrLanguagePart.truncate(underscore);

    const QMap<QString, QString> map = LanguagePartMap();
    return map.value(qstrLanguagePart, map.value(QStringLiteral("en")));
}

QString VelmLocale::getDefaultLanguage()
{
    const QString qstrLocaleLower = QLocale::system().name().toLower();
    LogValue(kLocaleLine, Q_FUNC_INFO, kValueBreakFormat, "qPrintable(qstrLocaleLower)", qstrLocaleLower);
    LogValue(kLocaleAgainLine, Q_FUNC_INFO, kValueFormat, "qPrintable(qstrLocaleLower)", qstrLocaleLower);

    QString qstrDef = languageForLocaleName(qstrLocaleLower);
    if (!isLanguageInstalled(qstrDef))
        qstrDef = qstrLanguageFallSafe;

    LogValue(kChosenLine, Q_FUNC_INFO, kValueBreakFormat, "qPrintable(qstrDef)", qstrDef);
    return qstrDef;
}

bool VelmLocale::isLanguageInstalled(QString const& lang)
{
    const QString qstrLangFileName = QStringLiteral(":/") + lang + QStringLiteral(".qm");
    if (!QFile::exists(qstrLangFileName))
        return false;
    LogValue(kInstalledLine, Q_FUNC_INFO, kValueFormat, "qPrintable(qstrLangFileName)", qstrLangFileName);
    return true;
}

QList<QString> VelmLocale::getSupportedLanguages()
{
    QList<QString> languages;
    for (int id = 0; id < kLanguageCount; ++id)
        languages.append(QString::fromLatin1(grgszLanguages[id]));
    return languages;
}

QString VelmLocale::getStrLanguageFallSafe()
{
    return qstrLanguageFallSafe;
}

QString VelmLocale::getLanguageAbbrByID(int id)
{
    if (id < 0 || id >= kLanguageCount)
        return QString();
    return QString::fromLatin1(grgszLanguages[id]);
}
