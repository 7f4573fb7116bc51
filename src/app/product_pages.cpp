#include "app/product_pages.h"

namespace velmora {

QString productPageAddress(const QString& host, ProductPage page) {
    const QString path =
        page == ProductPage::terms ? QStringLiteral("/terms") : QStringLiteral("/safeguards");
    return QStringLiteral("https://") + host + path;
}

}  // namespace velmora
