#include <gtest/gtest.h>

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QSet>
#include <QTextStream>
#include <QTranslator>

#include <algorithm>

#include "VelmLocale.h"
#include "strtable.h"

// Q_INIT_RESOURCE declares the registration function, which must not end up
// inside a namespace.
static QStringList compiledCatalogueCodes()
{
    Q_INIT_RESOURCE(texts);
    return QDir(QStringLiteral(":/")).entryList({"*.qm"}, QDir::Files).replaceInStrings(".qm", "");
}

inline void PrintTo(const QString& text, std::ostream* out) { *out << text.toStdString(); }

namespace {

constexpr int kStringCount = 467;
constexpr int kDistinctTextCount = 425;
const QStringList kBrandNames = {"Velmora Drovia", "Drovia", "Quelmix", "Korvo"};
const QRegularExpression kPlaceholder(QStringLiteral("%L?\\d+|\\[[A-Za-z_]+\\]"));
const QRegularExpression kAccelerator(QStringLiteral("(?<!&)&(?!&)"));  // "&&" is a literal &

// A compiled catalogue is a 16-byte magic, then sections written as a tag byte
// and a length-prefixed block; the hash section (0x42) has 8 bytes per message.
QList<int> sectionTags(const QString& path, int* messageCount)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QDataStream in(file.readAll().mid(16));
    QList<int> tags;
    while (!in.atEnd() && in.status() == QDataStream::Ok) {
        quint8 tag = 0;
        QByteArray section;
        in >> tag >> section;
        tags.append(tag);
        if (tag == 0x42)
            *messageCount = section.size() / 8;
    }
    return tags;
}

QStringList placeholders(const QString& text)
{
    QStringList found;
    for (auto matches = kPlaceholder.globalMatch(text); matches.hasNext();)
        found.append(matches.next().captured());
    std::sort(found.begin(), found.end());
    return found;
}

bool isOnlyBrandNames(QString text)
{
    for (const QString& brand : kBrandNames)
        text.remove(brand);
    return std::none_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

QSet<QString> allowedSameAsEnglish(const QString& code)
{
    QSet<QString> allowed;
    QFile file(QStringLiteral(SAME_AS_ENGLISH_FILE));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly | QIODevice::Text));
    QTextStream in(&file);
    in.setCodec("UTF-8");
    while (!in.atEnd()) {
        const QStringList fields = in.readLine().split(QLatin1Char('\t'));
        if (fields.size() == 2 && (fields[0] == QLatin1String("*") || fields[0] == code))
            allowed.insert(fields[1]);
    }
    return allowed;
}

using CatalogueTest = ::testing::TestWithParam<QString>;

TEST_P(CatalogueTest, HoldsOneMessagePerTextKeepingWhatTheProgramNeeds)
{
    const QString code = GetParam();
    const QString path = ":/" + code + ".qm";
    // lrelease adds language, numerus or dependency sections when the .ts
    // names a language or other catalogues; the launcher expects none.
    int messageCount = -1;
    EXPECT_EQ(sectionTags(path, &messageCount), (QList<int>{0x42, 0x69}));
    EXPECT_EQ(messageCount, kDistinctTextCount);
    // A catalogue under any other name is never loaded.
    EXPECT_TRUE(VelmLocale::getSupportedLanguages().contains(code));

    QTranslator translator;
    ASSERT_TRUE(translator.load(path));
    const QSet<QString> allowed = allowedSameAsEnglish(code);
    StrTable::InitStrTable();
    QSet<QString> sources;
    for (int id = 0; id < kStringCount; ++id)
        sources.insert(StrTable::LoadStr(id));
    for (const QString& source : sources) {
        SCOPED_TRACE(source.toStdString());
        const QString translation = translator.translate("global", source.toUtf8().constData(), nullptr, -1);
        ASSERT_FALSE(translation.trimmed().isEmpty()) << "missing or empty";
        if (code == QLatin1String("enu")) {
            EXPECT_EQ(translation, source);
        } else if (translation == source) {
            EXPECT_TRUE(allowed.contains(source) || isOnlyBrandNames(source)) << "left in English";
        }
        EXPECT_EQ(placeholders(translation), placeholders(source));
        EXPECT_EQ(translation.count(kAccelerator), source.count(kAccelerator));
        EXPECT_EQ(translation.startsWith(' '), source.startsWith(' '));
        EXPECT_EQ(translation.endsWith(' '), source.endsWith(' '));
        for (const QString& brand : kBrandNames)
            EXPECT_TRUE(!source.contains(brand) || translation.contains(brand)) << brand.toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(AllCatalogues, CatalogueTest, ::testing::ValuesIn(compiledCatalogueCodes()),
                         [](const auto& info) { return info.param.toStdString(); });

}  // namespace
