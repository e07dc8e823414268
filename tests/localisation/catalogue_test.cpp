#include <gtest/gtest.h>
#include <QDataStream>
#include <QDir>
#include <QRegularExpression>
#include <QSet>
#include <QTranslator>

#include "VelmLocale.h"
#include "strtable.h"

// Q_INIT_RESOURCE declares the registration function, which must not end up inside a namespace.
static QStringList compiledCatalogueCodes()
{
    Q_INIT_RESOURCE(texts);
    return QDir(QStringLiteral(":/")).entryList({"*.qm"}, QDir::Files).replaceInStrings(".qm", "");
}

namespace {

const QStringList kBrandNames = {"Velmora Drovia", "Drovia", "Quelmix", "Korvo"};

// What a translation must keep: placeholders, accelerators ("&&" is a literal &), edge blanks and brand
// names.
std::string kept(const QString& text)
{
    static const QRegularExpression kept(QStringLiteral("%L?\\d+|\\[[A-Za-z_]+\\]|(?<!&)&(?!&)|^ | $"));
    QStringList found;
    for (auto matches = kept.globalMatch(text); matches.hasNext();)
        found.append(matches.next().captured());
    for (const QString& brand : kBrandNames)
        found.append(text.contains(brand) ? brand : "");
    found.sort();
    return found.join('|').toStdString();
}

using CatalogueTest = ::testing::TestWithParam<QString>;

TEST_P(CatalogueTest, HoldsOneMessagePerTextKeepingWhatTheProgramNeeds)
{
    const QString code = GetParam(), path = ":/" + code + ".qm";
    // A compiled catalogue is a 16-byte magic, then tagged, length-prefixed sections. lrelease adds language,
    // numerus or dependency sections when the .ts asks for them; the launcher expects only hashes (8 bytes a
    // message) and messages.
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    QDataStream in(file.readAll().mid(16));
    QList<int> tags;
    for (quint8 tag = 0; !in.atEnd() && in.status() == QDataStream::Ok;) {
        QByteArray section;
        in >> tag >> section;
        tags.append(tag == 0x42 ? section.size() / 8 : tag);
    }
    EXPECT_EQ(tags, (QList<int>{425, 0x69}));
    EXPECT_TRUE(VelmLocale::getSupportedLanguages().contains(code)) << "never loaded under any other name";

    QSet<QString> allowed, sources;  // may read the same as English: one "<code or *>\t<text>" a line
    QFile allow_list(QStringLiteral(SAME_AS_ENGLISH_FILE));
    ASSERT_TRUE(allow_list.open(QIODevice::ReadOnly | QIODevice::Text));
    for (const QString& line : QString::fromUtf8(allow_list.readAll()).split('\n'))
        if (const QStringList fields = line.split('\t');
            fields.size() == 2 && (fields[0] == "*" || fields[0] == code))
            allowed.insert(fields[1]);
    QTranslator translator;
    ASSERT_TRUE(translator.load(path));
    StrTable::InitStrTable();
    for (int id = 0; id < 467; ++id)
        sources.insert(StrTable::LoadStr(id));
    for (const QString& source : sources) {
        SCOPED_TRACE(source.toStdString());
        const QString translation = translator.translate("global", source.toUtf8().constData(), nullptr, -1);
        EXPECT_FALSE(translation.trimmed().isEmpty()) << "missing or empty";
        QString letters = source;
        for (const QString& brand : kBrandNames)
            letters.remove(brand);
        EXPECT_TRUE(code == "enu" ? translation == source
                                  : translation != source || allowed.contains(source) ||
                                        !letters.contains(QRegularExpression("\\p{L}")))
            << "left in English or changed";
        EXPECT_EQ(kept(translation), kept(source));
    }
}

INSTANTIATE_TEST_SUITE_P(AllCatalogues, CatalogueTest, ::testing::ValuesIn(compiledCatalogueCodes()),
                         [](const auto& info) { return info.param.toStdString(); });

}  // namespace
