#include <gtest/gtest.h>

#include <QDataStream>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QResource>
#include <QSet>
#include <QTextStream>
#include <QTranslator>

#include <algorithm>

#include "VelmLocale.h"
#include "qt-test-support.h"
#include "strtable.h"

// Q_INIT_RESOURCE declares the registration function, which must not end up
// inside a namespace.
static QStringList compiledCatalogueCodes()
{
    Q_INIT_RESOURCE(texts);
    QStringList codes;
    for (const QString& name : QDir(QStringLiteral(":/")).entryList({"*.qm"}, QDir::Files))
        codes.append(QFileInfo(name).completeBaseName());
    return codes;
}

namespace {

constexpr int kStringCount = 467;
constexpr int kDistinctTextCount = 425;
constexpr int kQmMagicLength = 16;
constexpr int kQmHashesTag = 0x42;
constexpr int kQmMessagesTag = 0x69;
constexpr int kQmHashEntrySize = 8;
const QStringList kBrandNames = {"Velmora Drovia", "Drovia", "Quelmix", "Korvo"};
const QRegularExpression kPlaceholder(QStringLiteral("%L?\\d+|\\[[A-Za-z_]+\\]"));
const QRegularExpression kAccelerator(QStringLiteral("(?<!&)&(?!&)"));  // "&&" is a literal &

QString resourcePath(const QString& code)
{
    return QStringLiteral(":/") + code + QStringLiteral(".qm");
}

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// Each section of a compiled catalogue is a tag byte and a length-prefixed
// block, which is how QDataStream writes a QByteArray. The hash table has
// one entry per message.
QList<int> sectionTags(const QByteArray& qm, int* messageCount)
{
    QList<int> tags;
    QDataStream in(qm.mid(kQmMagicLength));
    while (!in.atEnd() && in.status() == QDataStream::Ok) {
        quint8 tag = 0;
        QByteArray section;
        in >> tag >> section;
        tags.append(tag);
        if (tag == kQmHashesTag)
            *messageCount = section.size() / kQmHashEntrySize;
    }
    return tags;
}

QStringList stringTableTexts()
{
    StrTable::InitStrTable();
    QSet<QString> texts;
    for (int id = 0; id < kStringCount; ++id)
        texts.insert(StrTable::LoadStr(id));
    return texts.values();
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

TEST_P(CatalogueTest, HoldsOnlyHashesAndOneMessagePerText)
{
    // lrelease adds a language and a numerus section when the .ts names a
    // language, dependencies when it names other catalogues.
    int messageCount = -1;
    EXPECT_EQ(sectionTags(readAll(resourcePath(GetParam())), &messageCount),
              (QList<int>{kQmHashesTag, kQmMessagesTag}));
    EXPECT_EQ(messageCount, kDistinctTextCount);
}

TEST_P(CatalogueTest, TranslatesEveryTextKeepingWhatTheProgramNeeds)
{
    QTranslator translator;
    ASSERT_TRUE(translator.load(resourcePath(GetParam())));
    const bool english = GetParam() == QLatin1String("enu");
    const QSet<QString> allowed = allowedSameAsEnglish(GetParam());
    for (const QString& source : stringTableTexts()) {
        SCOPED_TRACE(source.toStdString());
        const QString translation =
            translator.translate("global", source.toUtf8().constData(), nullptr, -1);
        ASSERT_FALSE(translation.trimmed().isEmpty()) << "missing or empty";
        if (english) {
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

TEST_P(CatalogueTest, ReadsBackInFullThroughQFile)
{
    // Whether rcc stored or compressed the file must not show.
    const QResource resource(resourcePath(GetParam()));
    EXPECT_NE(resource.compressionAlgorithm(), QResource::ZstdCompression);
    const QByteArray compiled = readAll(CATALOGUE_DIR "/" + GetParam() + ".qm");
    ASSERT_FALSE(compiled.isEmpty());
    EXPECT_EQ(readAll(resourcePath(GetParam())), compiled);
}

INSTANTIATE_TEST_SUITE_P(AllCatalogues, CatalogueTest, ::testing::ValuesIn(compiledCatalogueCodes()),
                         [](const auto& info) { return info.param.toStdString(); });

TEST(CatalogueCollection, HoldsOnlyCataloguesOfSupportedLanguages)
{
    const QStringList codes = compiledCatalogueCodes();
    EXPECT_TRUE(codes.contains(QStringLiteral("enu")));
    for (const QString& code : codes)
        EXPECT_TRUE(VelmLocale::getSupportedLanguages().contains(code)) << code.toStdString();
    EXPECT_FALSE(QFile::exists(QStringLiteral(":/ENU.qm")));
    EXPECT_FALSE(QFile::exists(QStringLiteral(":/xyz.qm")));
}

}  // namespace
