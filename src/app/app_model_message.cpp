#include "app/app_model.h"
#include "compose/template_renderer.h"

namespace velmora {

QString AppModel::currentTemplate() const {
    if (!config_.selectedGroupID)
        return {};
    return config_.templates.value(*config_.selectedGroupID, TemplateRenderer::defaultTemplate());
}

void AppModel::setCurrentTemplate(const QString& text) {
    if (!config_.selectedGroupID)
        return;
    editConfig([&](AppConfig& config) { config.templates.insert(*config.selectedGroupID, text); });
    Q_EMIT recipientTextsChanged();
}

void AppModel::appendToTemplate(const QString& snippet) {
    setCurrentTemplate(currentTemplate() + snippet);
}

bool AppModel::isPersonalised() const {
    return TemplateRenderer::isPersonalised(currentTemplate());
}

QString AppModel::textFor(const Recipient& recipient) const {
    return textFor(recipient, TemplateRenderer::splitVersions(currentTemplate()));
}

QString AppModel::textFor(const Recipient& recipient, const QStringList& versions) const {
    if (!recipient.usable || versions.isEmpty())
        return {};
    const quint64 version =
        TemplateRenderer::versionIndex(recipient.phone, static_cast<quint64>(versions.size()));
    return TemplateRenderer::renderText(versions[static_cast<qsizetype>(version)],
                                        recipient.firstName, config_.notes.value(recipient.id));
}

}  // namespace velmora
