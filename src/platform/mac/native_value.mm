#include "platform/mac/native_value.h"

#include "platform/mac/native_text.h"

namespace velmora {

namespace {

QVariant listOf(NSArray* array) {
    QVariantList list;
    for (id element in array) list.append(valueOf(element));
    return list;
}

QVariant mapOf(NSDictionary* dictionary) {
    QVariantMap map;
    for (id key in dictionary) {
        if (![key isKindOfClass:[NSString class]]) return {};
        map.insert(textOf(key), valueOf([dictionary objectForKey:key]));
    }
    return map;
}

}  // namespace

QVariant valueOf(id value) {
    if ([value isKindOfClass:[NSString class]]) return textOf(value);
    if ([value isKindOfClass:[NSArray class]]) return listOf(value);
    if ([value isKindOfClass:[NSDictionary class]]) return mapOf(value);
    return {};
}

}  // namespace velmora
