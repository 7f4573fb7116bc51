#include "ui/window/notice.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>
#include <utility>

#include "ui/controls/alert_content.h"
#include "ui/look/drawn_look.h"
#include "ui/window/views.h"

using namespace Qt::StringLiterals;

namespace velmora {

void showNotice(const QString& sentence, std::unique_ptr<NativeLook> look) {
    if (!look)
        look = std::make_unique<DrawnLook>();
    QQmlApplicationEngine engine;
    prepareViews(engine, std::move(look));
    engine.setInitialProperties(
        {{u"content"_s, QVariant::fromValue(AlertContent::saying(sentence))}});
    engine.load(QUrl(u"qrc:/qt/qml/Velmora/NoticeWindow.qml"_s));
    if (!engine.rootObjects().isEmpty())
        QGuiApplication::exec();
}

}  // namespace velmora
