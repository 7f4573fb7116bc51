#include "ui/sidebar_model.h"

#include "app/app_home.h"

namespace velmora {

namespace {

using SidebarModelTest = AppHome;

QStringList rows(const SidebarModel& sidebar) {
    QStringList found;
    for (int row = 0; row < sidebar.rowCount(); ++row) {
        const QModelIndex index = sidebar.index(row);
        found.append(index.data(SidebarModel::nameRole).toString() + u' ' +
                     index.data(SidebarModel::countRole).toString() + u' ' +
                     index.data(SidebarModel::symbolRole).toString());
    }
    return found;
}

// Catches All Contacts away from the top, a wrong symbol, or a row that keeps an old count; a list
// rebuilt (and scrolled back) for a mere count.
TEST_F(SidebarModelTest, RowsFollowTheGroups) {
    AppModel& app = open();
    const SidebarModel sidebar(app);
    app.bootstrap();
    world.clock.advance(1);
    EXPECT_EQ(rows(sidebar), QStringList({u"All Contacts 3 person.2"_s, u"Friends 3 person.3"_s}));

    int resets = 0;
    QObject::connect(&sidebar, &SidebarModel::modelReset, [&] { ++resets; });
    int changes = 0;
    QObject::connect(&sidebar, &SidebarModel::dataChanged, [&] { ++changes; });
    friends({person(u"ann"_s, u"Ann"_s, u"Lee"_s, u"212 555 0101"_s)});
    app.loadList();
    EXPECT_EQ(rows(sidebar), QStringList({u"All Contacts 1 person.2"_s, u"Friends 1 person.3"_s}));
    EXPECT_EQ(resets, 0);
    EXPECT_EQ(changes, 2);
}

// Catches a row that shows as chosen though another is; the chosen row chosen again, which would
// empty the search; a list changed during a run.
TEST_F(SidebarModelTest, ChoosesAnotherListOnly) {
    AppModel& app = started();
    SidebarModel sidebar(app);
    sidebar.choose(1);
    EXPECT_EQ(app.config().selectedGroupID, u"friends"_s);
    EXPECT_EQ(sidebar.currentRow(), 1);
    app.searchText = u"ann"_s;
    sidebar.choose(1);
    EXPECT_EQ(app.searchText.value(), u"ann");
    sidebar.choose(-1);
    EXPECT_EQ(sidebar.currentRow(), -1);

    int locks = 0;
    QObject::connect(&sidebar, &SidebarModel::enabledChanged, [&] { ++locks; });
    app.runner().state = Runner::State::paused;
    EXPECT_EQ(locks, 1);
    EXPECT_FALSE(sidebar.enabled());
    sidebar.choose(1);
    EXPECT_EQ(sidebar.currentRow(), -1);
}

}  // namespace

}  // namespace velmora
