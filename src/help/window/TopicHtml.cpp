#include "help/window/TopicHtml.h"

#include "help/window/HelpSitemap.h"

#include <QTextFrame>
#include <QUrl>
#include <QVariant>
#include <algorithm>

namespace
{

constexpr int DeepestTable = 6;

class ClosedDocument final : public QTextDocument
{
protected:
    QVariant loadResource(int /*type*/, const QUrl& /*name*/) override { return {}; }
};

bool isDeeper(const QTextFrame& frame, int levels)
{
    if (levels == 0) {
        return !frame.childFrames().isEmpty();
    }
    const auto children = frame.childFrames();
    return std::any_of(children.begin(), children.end(),
        [levels](const QTextFrame* child) { return isDeeper(*child, levels - 1); });
}

} // namespace

qsizetype tagsOf(const QString& html)
{
    return html.count(u'<');
}

QString topicText(const QByteArray& bytes)
{
    return htmlText(bytes).normalized(QString::NormalizationForm_C);
}

std::unique_ptr<QTextDocument> readTopic(const QString& html)
{
    if (html.size() > LargestTopic || tagsOf(html) > MostTags) {
        return nullptr;
    }
    auto document = std::make_unique<ClosedDocument>();
    document->setHtml(html);
    return isDeeper(*document->rootFrame(), DeepestTable) ? nullptr : std::move(document);
}
