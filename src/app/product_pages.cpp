#include "app/product_pages.h"

using namespace Qt::StringLiterals;

namespace velmora {

QString productPageAddress(const QString& host, ProductPage page) {
    const QString path = page == ProductPage::terms ? u"/terms"_s : u"/safeguards"_s;
    return u"https://"_s + host + path;
}

}  // namespace velmora
