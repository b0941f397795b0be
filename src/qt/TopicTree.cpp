#include "TopicTree.hpp"

#include "Art.hpp"

#include <QSignalBlocker>

#include <map>

namespace ordwise {

TopicTree::TopicTree(QWidget* parent, const Nodes& nodes) : QTreeWidget(parent) {
    setObjectName(QStringLiteral("TreeView1"));
    setHeaderHidden(true);
    std::map<std::string, QTreeWidgetItem*> headings;
    for (const ChooserWindow::Node& node : nodes) {
        QTreeWidgetItem* item =
            node.Parent.empty() ? new QTreeWidgetItem(this) : new QTreeWidgetItem(headings.at(node.Parent));
        item->setText(0, qstringOf(node.Text));
        item->setIcon(0, artIcon(node.Image));
        if (!node.Key.empty()) headings.emplace(node.Key, item);
        items_.push_back(item);
    }
}

void TopicTree::showFound(const Nodes& nodes, bool searching) {
    for (std::size_t i = 0; i < items_.size(); ++i) {
        items_[i]->setHidden(!nodes[i].Shown);
        items_[i]->setExpanded(searching && nodes[i].Shown);
    }
}

void TopicTree::mark(std::string_view topic) {
    const QSignalBlocker quiet(this);
    if (topic.empty()) {
        const bool onHeading = currentItem() != nullptr && currentItem()->childCount() > 0;
        if (!onHeading) setCurrentItem(nullptr);
        return;
    }
    const auto found = findItems(qstringOf(topic), Qt::MatchExactly | Qt::MatchRecursive);
    if (found.isEmpty()) return;
    setCurrentItem(found.first());
    scrollToItem(found.first());
}

}  // namespace ordwise
