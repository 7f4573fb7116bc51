#include "platform/mac/phone_labels.h"

#import <Contacts/Contacts.h>

#include <array>

#include "contacts/contact_source.h"
#include "platform/mac/native_text.h"

namespace velmora {

namespace {

struct NamedLabel {
    QString native;
    QString ours;
};

const std::array<NamedLabel, 3>& namedLabels() {
    static const std::array<NamedLabel, 3> labels{
        {{textOf(CNLabelPhoneNumberMobile), PhoneLabel::mobile},
         {textOf(CNLabelPhoneNumberiPhone), PhoneLabel::iPhone},
         {textOf(CNLabelPhoneNumberMain), PhoneLabel::main}}};
    return labels;
}

}  // namespace

std::optional<QString> phoneLabelOf(NSString* label) {
    const std::optional<QString> text = optionalTextOf(label);
    for (const NamedLabel& named : namedLabels())
        if (text == named.native) return named.ours;
    return text;
}

NSString* nativePhoneLabel(const QString& label) {
    for (const NamedLabel& named : namedLabels())
        if (label == named.ours) return nativeText(named.native);
    return nativeText(label);
}

}  // namespace velmora
