#include "support/TestMain.h"
#include "widgets/FittingHeader.h"

#include <QImage>
#include <QPainter>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>

namespace
{

const QString Caption = QStringLiteral("Periority");

/// A header that shows its caption in black on white.
class ShownHeader : public FittingHeader
{
public:
    ShownHeader()
    {
        m_model.setHorizontalHeaderLabels({Caption, QString()});
        setModel(&m_model);
        setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
        setMinimumSectionSize(1);
        resize(600, sizeHint().height());
    }
    int needed() const { return fontMetrics().horizontalAdvance(Caption); }
    QString shownCaption() const
    {
        QStyleOptionHeaderV2 option;
        initStyleOption(&option);
        initStyleOptionForIndex(&option, 0);
        return option.text;
    }
    /// The columns of pixels from the first to the last with a part of a letter in it.
    int inkWidth()
    {
        const int height = sizeHint().height();
        const auto painted = [&](const QString& caption) {
            m_model.setHorizontalHeaderLabels({caption, QString()});
            QImage image(sectionSize(0), height, QImage::Format_RGB32);
            image.fill(Qt::white);
            {
                QPainter painter(&image);
                paintSection(&painter, image.rect(), 0);
            }
            return image;
        };
        const QImage empty = painted({});
        const QImage full = painted(Caption);
        int first = full.width();
        int last = -1;
        for (int x = 0; x < full.width(); ++x) {
            for (int y = 0; y < height; ++y) {
                if (full.pixel(x, y) != empty.pixel(x, y)) {
                    first = qMin(first, x);
                    last = x;
                }
            }
        }
        return last - first + 1;
    }

private:
    QStandardItemModel m_model;
};

} // namespace

class tst_fitting_header : public TestCase
{
    Q_OBJECT

private slots:
    void aCaptionWithRoomIsDrawnAsItIs()
    {
        ShownHeader header;
        header.resizeSection(0, 2 * header.needed());
        QCOMPARE(header.shownCaption(), Caption);
        QVERIFY2(
            qAbs(header.inkWidth() - header.needed()) <= 3, qPrintable(QString::number(header.inkWidth())));
    }

    void aCaptionThatIsALittleTooLongKeepsItsWholeWordInLessRoom()
    {
        ShownHeader header;
        for (int width = header.needed() + 10; width > header.needed() * 2 / 3 + 10; --width) {
            header.resizeSection(0, width);
            QCOMPARE(header.shownCaption(), Caption);
            const int ink = header.inkWidth();
            QVERIFY2(ink <= width - 8 && ink >= width - 16,
                qPrintable(QStringLiteral("%1 of %2").arg(ink).arg(width)));
        }
    }

    void aCaptionThatIsMuchTooLongIsElided()
    {
        ShownHeader header;
        header.resizeSection(0, header.needed() / 2 + 4);
        QVERIFY(header.shownCaption() != Caption);
        QVERIFY(header.shownCaption().contains(QChar(0x2026)));
        QVERIFY(header.inkWidth() <= header.sectionSize(0) - 8);
    }

    void aSortedColumnIsFittedWithRoomForItsSign()
    {
        ShownHeader header;
        const int usual = header.sectionSizeHint(0);
        header.setSortIndicatorShown(true);
        header.setSortIndicator(0, Qt::AscendingOrder);
        header.resizeSection(0, header.sectionSizeHint(0));
        QVERIFY(header.sectionSize(0) > usual);
        QCOMPARE(header.shownCaption(), Caption);
    }

    void aHeaderOutlivesItsModel()
    {
        QTableView list;
        auto* header = new FittingHeader(&list);
        list.setHorizontalHeader(header);
        {
            QStandardItemModel model(1, 2);
            list.setModel(&model);
        }
        QCOMPARE(header->model(), nullptr);
        QVERIFY(header->sizeHint().width() >= 0);
    }

    void theHeightDoesNotDependOnTheCaption()
    {
        ShownHeader header;
        const int height = header.sizeHint().height();
        header.resizeSection(0, header.needed() / 2);
        QCOMPARE(header.sizeHint().height(), height);
        QVERIFY(height >= header.fontMetrics().height());
    }
};

AMBERTASK_TEST_MAIN(tst_fitting_header)
#include "tst_fitting_header.moc"
