// Finding tasks as one types: what a key into the field costs until the list is painted again.
#include "support/Bench.h"
#include "support/BenchProgram.h"

#include <QApplication>
#include <QLineEdit>

namespace
{

constexpr double OneFrame = 16;

/// A sentence in some script, and a word of it of two letters.
struct Script {
    QString name;
    QString sentence; ///< of more than 170 letters
    QString word;
};

QList<Script> scripts()
{
    return {{QStringLiteral("Latin letters"),
                QStringLiteral(
                    "Call the dentist before noon and ask for an early appointment next week, bring the "
                    "insurance card, the old pictures and the list of questions that came up at home "
                    "since the last visit in spring"),
                QStringLiteral("de")},
        {QStringLiteral("Latin letters with accents"),
            QStringLiteral(
                "L\u2019\u00e9t\u00e9 pass\u00e9 \u00e0 B\u00e2le, o\u00f9 la f\u00eate a commenc\u00e9 "
                "apr\u00e8s No\u00ebl, d\u00e9j\u00e0 pr\u00e9par\u00e9e d\u00e8s l\u2019ann\u00e9e "
                "derni\u00e8re, r\u00e9unit les fr\u00e8res a\u00een\u00e9s, les ma\u00eetres "
                "d\u2019h\u00f4tel et les \u00e9l\u00e8ves, \u00e0 l\u2019h\u00f4pital comme au "
                "ch\u00e2teau"),
            QStringLiteral("fe")},
        {QStringLiteral("Cyrillic letters"),
            QStringLiteral(
                "\u041f\u043e\u0437\u0432\u043e\u043d\u0438\u0442\u044c \u0432\u0440\u0430\u0447\u0443 "
                "\u0434\u043e \u043f\u043e\u043b\u0443\u0434\u043d\u044f \u0438 "
                "\u0441\u043f\u0440\u043e\u0441\u0438\u0442\u044c \u043e "
                "\u0440\u0430\u043d\u043d\u0435\u043c "
                "\u043f\u0440\u0438\u0451\u043c\u0435 \u043d\u0430 "
                "\u0431\u0443\u0434\u0443\u0449\u0435\u0439 "
                "\u043d\u0435\u0434\u0435\u043b\u0435, \u0432\u0437\u044f\u0442\u044c "
                "\u043f\u043e\u043b\u0438\u0441 "
                "\u0438 \u0441\u043f\u0438\u0441\u043e\u043a ")
                .repeated(3),
            QStringLiteral("\u0432\u0440")},
        {QStringLiteral("Chinese letters"),
            QStringLiteral(
                "\u4e2d\u5348\u4e4b\u524d\u7ed9\u7259\u533b\u6253\u7535\u8bdd\u8be2\u95ee\u4e0b\u5468\u7684"
                "\u9884\u7ea6\u5e26\u4e0a\u533b\u4fdd\u5361\u548c\u65e7\u7247\u5b50\u4ee5\u53ca\u95ee"
                "\u9898\u6e05\u5355\u3002")
                .repeated(5),
            QStringLiteral("\u533b\u4fdd")}};
}

void fill(const TaskFile& file, const QString& sentence)
{
    file.run(QStringLiteral("update tasks set task_name=substr('%1', task_id%50+1, 30), "
                            "task_desc=substr('%1', task_id%50+1, 120)")
                 .arg(QString(sentence).replace(u'\'', QStringLiteral("''"))));
}

class Typist
{
public:
    explicit Typist(TaskFile& file)
        : m_shown(file), m_field(BenchProgram::control<QLineEdit>(m_shown.program.mainWindow(), "txtFind"))
    {
    }

    /// As the user comes to the field with a list just read.
    void begin()
    {
        m_field->clearFocus();
        m_shown.program.mainWindow().LoadTasks();
        m_field->setFocus();
        // The list makes ready in parts, one at each turn of the event loop.
        for (int turn = 0; turn < 100; ++turn) {
            QCoreApplication::processEvents();
        }
    }
    void type(const QString& text)
    {
        m_field->setText(text);
        m_shown.list()->viewport()->repaint();
        QCoreApplication::processEvents();
    }
    /// Milliseconds of CPU time.
    double costOf(const QString& text)
    {
        const double before = cpuSeconds();
        type(text);
        return (cpuSeconds() - before) * 1e3;
    }

private:
    BenchProgram m_shown;
    QLineEdit* m_field;
};

void benchKeys(Bench& bench, TaskFile& file, const Script& script)
{
    fill(file, script.sentence);
    Typist typist(file);
    const auto first = [&] {
        typist.type({});
        typist.begin();
        return typist.costOf(script.word.left(1));
    };
    const auto second = [&] {
        typist.type(script.word.left(1));
        return typist.costOf(script.word);
    };
    const auto none = [&] {
        typist.type(script.word);
        return typist.costOf({});
    };
    const Bench::Medians keys = bench.alternateValues(15, first, second);
    const Bench::Medians ends = bench.alternateValues(15, none, second);
    const auto tell = [&](const QString& key, double cost) {
        bench.value(QStringLiteral("%1, %2").arg(key, script.name), cost, OneFrame, QStringLiteral("ms"));
    };
    tell(QStringLiteral("First key"), keys.ours);
    tell(QStringLiteral("Second key"), keys.reference);
    tell(QStringLiteral("Text cleared"), ends.ours);
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    Bench bench(argc, argv);
    TaskFile file({bench.size(32'767, 200)});
    for (const Script& script : scripts()) {
        benchKeys(bench, file, script);
    }
    return 0;
}
