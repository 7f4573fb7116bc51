#include "app/product_pages.h"

#include <gtest/gtest.h>

namespace velmora {

// Catches two pages that are taken for each other, and an address made some other way.
TEST(ProductPages, EachHasItsOwnAddress) {
    const QString host = QStringLiteral("velmora.example");
    EXPECT_EQ(productPageAddress(host, ProductPage::terms), u"https://velmora.example/terms");
    EXPECT_EQ(productPageAddress(host, ProductPage::safeguards),
              u"https://velmora.example/safeguards");
}

}  // namespace velmora
