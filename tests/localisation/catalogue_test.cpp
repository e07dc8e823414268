#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>
#include <QResource>
#include <QSet>
#include <QTextStream>
#include <QTranslator>

#include <algorithm>

#include "qm-reader.h"
#include "qt-printers.h"
#include "strtable.h"
#include "test-application.h"
#include "VelmLocale.h"

// Q_INIT_RESOURCE declares the registration function, which must not end up
// inside a namespace.
static QStringList compiledCatalogueCodes()
{
    Q_INIT_RESOURCE(texts);
    QStringList codes;
    const QStringList names =
        QDir(QStringLiteral(":/")).entryList({QStringLiteral("*.qm")}, QDir::Files);
    for (const QString& name : names)
        codes.append(QFileInfo(name).completeBaseName());
    return codes;
}

namespace {

const auto* const kApplication =
    ::testing::AddGlobalTestEnvironment(new ApplicationEnvironment<QCoreApplication>);

constexpr int kStringCount = 467;
constexpr int kDistinctTextCount = 425;
const QStringList kBrandNames = {QStringLiteral("Velmora Drovia"), QStringLiteral("Drovia"),
                                 QStringLiteral("Quelmix"), QStringLiteral("Korvo")};

QString resourcePath(const QString& code)
{
    return QStringLiteral(":/") + code + QStringLiteral(".qm");
}

QByteArray readAll(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QByteArray();
    return file.readAll();
}

QSet<QString> stringTableTexts()
{
    StrTable::InitStrTable();
    QSet<QString> texts;
    for (int id = 0; id < kStringCount; ++id)
        texts.insert(StrTable::LoadStr(id));
    return texts;
}

// "%1", "%L1", "[ProductName]" and the like: whatever the program or the
// installer substitutes must survive translation.
QStringList placeholders(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral("%L?\\d+|\\[[A-Za-z_]+\\]"));
    QStringList found;
    auto matches = pattern.globalMatch(text);
    while (matches.hasNext())
        found.append(matches.next().captured());
    std::sort(found.begin(), found.end());
    return found;
}

int acceleratorCount(const QString& text)
{
    int count = 0;
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i) != QLatin1Char('&'))
            continue;
        if (i + 1 < text.size() && text.at(i + 1) == QLatin1Char('&'))
            ++i;  // "&&" is a literal ampersand
        else
            ++count;
    }
    return count;
}

bool isOnlyBrandNames(QString text)
{
    for (const QString& brand : kBrandNames)
        text.remove(brand);
    return std::none_of(text.begin(), text.end(), [](QChar c) { return c.isLetter(); });
}

QMap<QString, QSet<QString>> sameAsEnglishAllowList()
{
    QMap<QString, QSet<QString>> allowed;
    QFile file(QStringLiteral(SAME_AS_ENGLISH_FILE));
    if (!file.open(QIODevice::ReadOnly | QIODevice::Text))
        return allowed;
    QTextStream in(&file);
    in.setCodec("UTF-8");
    while (!in.atEnd()) {
        const QString line = in.readLine();
        const int tab = line.indexOf(QLatin1Char('\t'));
        if (line.startsWith(QLatin1Char('#')) || tab < 0)
            continue;
        allowed[line.left(tab)].insert(line.mid(tab + 1));
    }
    return allowed;
}

class CatalogueTest : public ::testing::TestWithParam<QString> {
protected:
    void SetUp() override
    {
        catalogue_ = readQmCatalogue(readAll(resourcePath(GetParam())));
        ASSERT_TRUE(catalogue_.valid) << qPrintable(GetParam());
    }

    QmCatalogue catalogue_;
};

TEST_P(CatalogueTest, HoldsExactlyTheStringTableTexts)
{
    // A language or dependency section appears when a translator's tool
    // names a language in the .ts; numerus rules with plural forms.
    const QList<int> expectedSections = {QmHashesSection, QmMessagesSection};
    EXPECT_EQ(catalogue_.sectionTags, expectedSections);
    ASSERT_EQ(catalogue_.messages.size(), kDistinctTextCount);

    QSet<QString> sources;
    for (const QmMessage& message : catalogue_.messages) {
        const QString source = QString::fromUtf8(message.sourceText);
        EXPECT_EQ(message.context, QByteArray("global")) << qPrintable(source);
        EXPECT_TRUE(message.comment.isEmpty()) << qPrintable(source);
        EXPECT_EQ(message.translations.size(), 1) << qPrintable(source);
        sources.insert(source);
    }
    EXPECT_EQ(sources, stringTableTexts());
}

TEST_P(CatalogueTest, TranslationsKeepWhatTheProgramRelyOn)
{
    for (const QmMessage& message : catalogue_.messages) {
        const QString source = QString::fromUtf8(message.sourceText);
        const QString translation = message.translations.value(0);
        SCOPED_TRACE(qPrintable(source));
        EXPECT_FALSE(translation.trimmed().isEmpty());
        EXPECT_EQ(placeholders(translation), placeholders(source));
        EXPECT_EQ(acceleratorCount(translation), acceleratorCount(source));
        EXPECT_EQ(translation.startsWith(QLatin1Char(' ')), source.startsWith(QLatin1Char(' ')));
        EXPECT_EQ(translation.endsWith(QLatin1Char(' ')), source.endsWith(QLatin1Char(' ')));
        for (const QString& brand : kBrandNames) {
            if (source.contains(brand)) {
                EXPECT_TRUE(translation.contains(brand)) << qPrintable(brand);
            }
        }
    }
}

TEST_P(CatalogueTest, TranslatesEveryText)
{
    const bool english = GetParam() == QLatin1String("enu");
    const auto allowList = sameAsEnglishAllowList();
    const QSet<QString> allowed =
        allowList.value(QStringLiteral("*")) + allowList.value(GetParam());
    for (const QmMessage& message : catalogue_.messages) {
        const QString source = QString::fromUtf8(message.sourceText);
        const QString translation = message.translations.value(0);
        if (english) {
            EXPECT_EQ(translation, source);
        } else if (translation == source) {
            EXPECT_TRUE(allowed.contains(source) || isOnlyBrandNames(source))
                << "left in English: " << qPrintable(source);
        }
    }
}

TEST_P(CatalogueTest, ServesItsTranslationsInTheGlobalContextOnly)
{
    QTranslator translator;
    ASSERT_TRUE(translator.load(resourcePath(GetParam())));
    ASSERT_TRUE(QCoreApplication::installTranslator(&translator));
    for (const QmMessage& message : catalogue_.messages) {
        const QByteArray& source = message.sourceText;
        EXPECT_EQ(QCoreApplication::translate("global", source.constData(), nullptr, -1),
                  message.translations.value(0));
        if (message.translations.value(0) != QString::fromUtf8(source)) {
            EXPECT_EQ(QCoreApplication::translate("other", source.constData(), nullptr, -1),
                      QString::fromUtf8(source));
        }
    }
    QCoreApplication::removeTranslator(&translator);
}

TEST_P(CatalogueTest, ReadsBackInFullThroughQFile)
{
    const QResource resource(resourcePath(GetParam()));
    EXPECT_TRUE(resource.compressionAlgorithm() == QResource::NoCompression ||
                resource.compressionAlgorithm() == QResource::ZlibCompression);
    const QByteArray compiled =
        readAll(QStringLiteral(CATALOGUE_DIR "/") + GetParam() + QStringLiteral(".qm"));
    ASSERT_FALSE(compiled.isEmpty());
    EXPECT_EQ(readAll(resourcePath(GetParam())), compiled);
}

INSTANTIATE_TEST_SUITE_P(AllCatalogues, CatalogueTest,
                         ::testing::ValuesIn(compiledCatalogueCodes()),
                         [](const ::testing::TestParamInfo<QString>& info) {
                             return info.param.toStdString();
                         });

TEST(CatalogueCollection, HoldsOnlyCataloguesOfSupportedLanguages)
{
    const QStringList codes = compiledCatalogueCodes();
    EXPECT_TRUE(codes.contains(QStringLiteral("enu")));
    const QList<QString> supported = VelmLocale::getSupportedLanguages();
    for (const QString& code : codes)
        EXPECT_TRUE(supported.contains(code)) << "unexpected catalogue " << qPrintable(code);
    EXPECT_FALSE(QFile::exists(QStringLiteral(":/ENU.qm")));
    EXPECT_FALSE(QFile::exists(QStringLiteral(":/xyz.qm")));
}

TEST(CatalogueCollection, StoredAndCompressedFilesReadBackInFull)
{
    // The same rcc options as the catalogues; a tiny catalogue does not
    // shrink enough to be compressed, the English one does.
    const QResource stored(QStringLiteral(":/storage/stored.qm"));
    const QResource compressed(QStringLiteral(":/storage/compressed.qm"));
    ASSERT_TRUE(stored.isValid());
    ASSERT_TRUE(compressed.isValid());
    EXPECT_EQ(stored.compressionAlgorithm(), QResource::NoCompression);
    EXPECT_EQ(compressed.compressionAlgorithm(), QResource::ZlibCompression);
    EXPECT_EQ(readAll(stored.fileName()), readAll(QStringLiteral(SAMPLE_CATALOGUE)));
    EXPECT_EQ(readAll(compressed.fileName()), readAll(QStringLiteral(CATALOGUE_DIR "/enu.qm")));
}

}  // namespace
