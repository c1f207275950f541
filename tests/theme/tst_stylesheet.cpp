#include "Pelorin/theme/Pelorin.h"
#include "Pelorin/theme/StyleProperty_p.h"
#include "tests/support/TestCase.h"
#include "tests/theme/StyleSheetTable.h"

#include <QChartView>
#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QTabWidget>

namespace {

/// A selector with its declarations. A rule with several selectors counts as several.
struct Rule
{
    QString selector;
    QStringList declarations;
};

using Rules = QVector<Rule>;

QStringList trimmedParts(const QString &text, char separator)
{
    QStringList parts = text.split(QLatin1Char(separator));
    for (QString &part : parts)
        part = part.simplified();
    parts.removeAll(QString());
    return parts;
}

void append(Rules &rules, const QString &selectors, const QStringList &declarations)
{
    for (const QString &selector : trimmedParts(selectors, ','))
        rules << Rule{ selector, declarations };
}

/// Reads the sheet back: comments away, then braces, commas and semicolons.
Rules rulesOf(QString sheet)
{
    static const QRegularExpression comment(QStringLiteral("/\\*.*?\\*/"),
                                            QRegularExpression::DotMatchesEverythingOption);
    sheet.remove(comment);
    Rules rules;
    for (const QString &block : trimmedParts(sheet, '}')) {
        const int brace = block.indexOf(QLatin1Char('{'));
        append(rules, block.left(brace), trimmedParts(block.mid(brace + 1), ';'));
    }
    return rules;
}

/// A phrase of the table as declarations; the captured texts take the places of %1 and %2.
struct Phrase
{
    const char *pattern;
    QStringList declarations;
};

const QVector<Phrase> &phrases()
{
    static const QString family = QStringLiteral("font-family: \"%1\"");
    static const QString weight = QStringLiteral("font-weight: bold");
    static const QString url = QStringLiteral("image: url(:/Pelorin/images/images/%1)");
    static const auto corner = [](const char *name) {
        return QStringLiteral("border-%1-radius: ").arg(QLatin1String(name)) + QStringLiteral("%1");
    };
    static const QStringList top{ corner("top-left"), corner("top-right") };
    static const QStringList bottom{ corner("bottom-left"), corner("bottom-right") };
    static const QVector<Phrase> list{
        { "([A-Z][A-Za-z ]+)", { family } },
        { "([A-Z][A-Za-z ]+) (\\d+px)", { family, QStringLiteral("font-size: %2") } },
        { "([A-Z][A-Za-z ]+) (\\d+px) bold", { family, QStringLiteral("font-size: %2"), weight } },
        { "(\\d+px)", { QStringLiteral("font-size: %1") } },
        { "(\\d+px) bold", { QStringLiteral("font-size: %1"), weight } },
        { "bold", { weight } },
        { "(\\d+px) by (\\d+px)", { QStringLiteral("width: %1"), QStringLiteral("height: %2") } },
        { "(#[0-9A-Fa-f]+|transparent)", { QStringLiteral("background-color: %1") } },
        { "no border", { QStringLiteral("border-style: none") } },
        { "image (\\w+\\.png)", { url } },
        { "background image (\\w+\\.png)", { QStringLiteral("background-") + url } },
        { "border image (\\w+\\.png)", { QStringLiteral("border-") + url } },
        { "no-repeat", { QStringLiteral("background-repeat: no-repeat") } },
        { "at (right|right center)", { QStringLiteral("background-position: %1") } },
        { "top corners (\\d+px)", top },
        { "right corners (\\d+px)", { top.last(), bottom.last() } },
        { "all corners (\\d+px)", top + bottom },
        { "(.+: .+)", { QStringLiteral("%1") } },
    };
    return list;
}

QStringList declarationsOf(const QString &said)
{
    for (const Phrase &phrase : phrases()) {
        const QRegularExpression pattern(
            QRegularExpression::anchoredPattern(QString::fromLatin1(phrase.pattern)));
        const QRegularExpressionMatch match = pattern.match(said);
        if (!match.hasMatch())
            continue;
        QStringList declarations = phrase.declarations;
        for (int i = 1; i <= match.lastCapturedIndex(); ++i)
            declarations.replaceInStrings(QLatin1Char('%') + QString::number(i), match.captured(i));
        return declarations;
    }
    return { QStringLiteral("no such phrase: ") + said };
}

Rules expectedRules()
{
    QString table = QString::fromLatin1(styleSheetTable);
    table.replace(QRegularExpression(QStringLiteral("\\n +")), QStringLiteral(" "));
    Rules rules;
    for (const QString &row : trimmedParts(table, '\n')) {
        const int bar = row.indexOf(QLatin1Char('|'));
        QStringList declarations;
        for (const QString &said : trimmedParts(row.mid(bar + 1), ';'))
            declarations << declarationsOf(said);
        append(rules, row.left(bar), declarations);
    }
    return rules;
}

QStringList selectorsOf(const Rules &rules)
{
    QStringList selectors;
    for (const Rule &rule : rules)
        selectors << rule.selector;
    return selectors;
}

Rules sheetRules()
{
    return rulesOf(Pelorin::getApplicationStylesheet());
}

/// Every match of \a pattern in the sheet, each once: its captured texts, joined by blanks.
QStringList found(const char *pattern)
{
    QStringList matches;
    auto match = QRegularExpression(QString::fromLatin1(pattern))
                     .globalMatch(Pelorin::getApplicationStylesheet());
    while (match.hasNext())
        matches << match.next().capturedTexts().mid(1).join(QLatin1Char(' '));
    matches.removeDuplicates();
    matches.sort();
    return matches;
}

QStringList pairs(const char *property, std::initializer_list<QLatin1String> values)
{
    QStringList list;
    for (const QLatin1String value : values)
        list << QLatin1String(property) + QLatin1Char(' ') + value;
    return list;
}

QStringList typePairs()
{
    using namespace StyleType;
    return pairs(StyleProperty::type, { title,
                                        heading,
                                        headingLight,
                                        label,
                                        labelLimitLow,
                                        labelLimitHigh,
                                        labelLimitOk,
                                        labelHighlighted,
                                        labelHeader,
                                        text,
                                        textBold,
                                        panelLabel,
                                        panelText,
                                        header,
                                        tinyHeader,
                                        settings,
                                        prerequisite,
                                        roundedRed,
                                        roundedGrey,
                                        fluorophoreClearButton,
                                        mainViewTabBar,
                                        scrollBarGrey,
                                        chartTitle,
                                        chartBackWidget,
                                        chartTotalPowerTitle,
                                        chartTotalPowerValue,
                                        chartTotalPowerContainer,
                                        chartControlContainer,
                                        chartVisibilityContainer,
                                        chartZoomResetButton,
                                        chartSaveButton,
                                        chartVisibilityCheckBox });
}

QStringList stylePairs()
{
    using namespace ButtonStyle;
    return pairs(StyleProperty::style,
                 { close, warning, toggle, play, stop, edit, save, saveScaleable, set, smallUpArrow,
                   smallDownArrow, bigUpArrow, bigDownArrow });
}

QStringList colorPairs()
{
    const std::initializer_list<QLatin1String> colors{ ButtonColor::red, ButtonColor::grey,
                                                       ButtonColor::darkGrey, ButtonColor::green,
                                                       ButtonColor::orange };
    return pairs(StyleProperty::buttonColor, colors)
           + pairs(StyleProperty::buttonCheckedColor, colors)
           + pairs(StyleProperty::widgetColor,
                   { WidgetColor::red, WidgetColor::white, WidgetColor::whiteLogo,
                     WidgetColor::lightGrey, WidgetColor::yellow, WidgetColor::green })
           + pairs(StyleProperty::background, { FieldBackground::dark, FieldBackground::white });
}

/// One widget of each kind to which the sheet speaks, for Qt reads a sheet when it polishes.
std::unique_ptr<QWidget> oneOfEach()
{
    auto window = std::make_unique<QWidget>();
    for (QWidget *widget : std::initializer_list<QWidget *>{
             new QLabel, new QLineEdit, new QCheckBox, new QRadioButton, new QPushButton,
             new QComboBox, new QProgressBar, new QScrollArea, new QTabWidget,
             new QtCharts::QChartView })
        widget->setParent(window.get());
    return window;
}

} // namespace

/// Holds the text of the sheet against the table of its rules.
class tst_StyleSheet : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void hasTheRulesOfTheTableInItsOrder();
    void declaresWhatTheTableSays_data();
    void declaresWhatTheTableSays();
    void isPlainTextWithCarriageReturns();
    void namesPicturesThatAreThere();
    void knowsTheVocabularyAndNoOtherWord();
    void isTakenByQtWithoutAWarning();
    void declaresOnlyWhatQtKnows();
};

void tst_StyleSheet::hasTheRulesOfTheTableInItsOrder()
{
    const QStringList selectors = selectorsOf(sheetRules());
    const QStringList expected = selectorsOf(expectedRules());

    for (int i = 0; i < qMin(selectors.size(), expected.size()); ++i)
        QCOMPARE(selectors.at(i), expected.at(i));
    QCOMPARE(selectors.size(), expected.size());
}

void tst_StyleSheet::declaresWhatTheTableSays_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("declarations");

    const Rules expected = expectedRules();
    for (int i = 0; i < expected.size(); ++i)
        QTest::addRow("%d: %s", i + 1, qPrintable(expected.at(i).selector))
            << i << expected.at(i).declarations;
}

void tst_StyleSheet::declaresWhatTheTableSays()
{
    QFETCH(int, index);
    QFETCH(QStringList, declarations);

    const Rules rules = sheetRules();

    QVERIFY(index < rules.size());
    QCOMPARE(rules.at(index).declarations, declarations);
}

void tst_StyleSheet::isPlainTextWithCarriageReturns()
{
    const QString sheet = Pelorin::getApplicationStylesheet();

    QVERIFY(sheet.endsWith(QStringLiteral("}\r\n")));
    QCOMPARE(sheet.count(QLatin1Char('\n')), sheet.count(QStringLiteral("\r\n")));
    QCOMPARE(sheet.count(QLatin1Char('\r')), sheet.count(QStringLiteral("\r\n")));
    for (const QChar character : sheet)
        QVERIFY(character == QLatin1Char('\r') || character == QLatin1Char('\n')
                || (character >= QLatin1Char(' ') && character <= QLatin1Char('~')));
}

void tst_StyleSheet::namesPicturesThatAreThere()
{
    const QStringList paths = found("url\\(([^)]*)\\)");

    QVERIFY(!paths.isEmpty());
    for (const QString &path : paths)
        QVERIFY2(QFile::exists(path), qPrintable(path));
}

void tst_StyleSheet::knowsTheVocabularyAndNoOtherWord()
{
    QStringList vocabulary = typePairs() + stylePairs() + colorPairs();
    vocabulary += pairs(StyleProperty::flat, { QLatin1String("true") });
    vocabulary += pairs(StyleProperty::singleMode, { QLatin1String("false") });
    vocabulary += pairs(StyleProperty::buttonSize, { ButtonSize::normal, ButtonSize::small,
                                                     ButtonSize::longSmall, ButtonSize::fat });
    vocabulary.sort();

    const QStringList words = found("\\[([^=]*)=\"([^\"]*)\"\\]");

    QCOMPARE(words, vocabulary);
    // The sheet's plain handle is red; the word for it only says so.
    QCOMPARE(StyleType::scrollBarRed, QLatin1String("scrollbar-flat-rounded-red"));
}

void tst_StyleSheet::isTakenByQtWithoutAWarning()
{
    const std::unique_ptr<QWidget> window = oneOfEach();

    qApp->setStyleSheet(Pelorin::getApplicationStylesheet());
    window->show();
    window->grab();

    // What Qt cannot read, it drops with a warning, and a warning fails a test.
    QCOMPARE(window->findChild<QRadioButton *>()->font().pixelSize(), 13);
    qApp->setStyleSheet(QString());
}

void tst_StyleSheet::declaresOnlyWhatQtKnows()
{
    QString sheet;
    for (const Rule &rule : sheetRules())
        sheet += QStringLiteral("QLabel { %1 }\n").arg(rule.declarations.join(QLatin1Char(';')));
    QLabel label;

    label.setStyleSheet(sheet);
    label.ensurePolished();

    // A property that Qt does not know would have come as a warning.
    QCOMPARE(label.font().pixelSize(), 14); // the last size in the sheet, of compact lists
}

PELORIN_TEST_MAIN(tst_StyleSheet)
#include "tst_stylesheet.moc"
