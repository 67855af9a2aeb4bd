// What a parse entered into a table of structures, so that it can be taken back when an exception
// has freed the nodes that the entries point at.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

/// Logs the entries of one table, which must outlive it.
template <typename Node>
class DefinitionLog {
public:
    using Table = std::map<std::string, Node*>;

    explicit DefinitionLog(Table& table) : table(table) {}
    DefinitionLog(const DefinitionLog&) = delete;
    DefinitionLog& operator=(const DefinitionLog&) = delete;

    /// Enters `node` under its name, in the place of what stood there.
    void define(Node* node) {
        Node*& entry = table[node->name.text];
        changes.push_back({node->name.text, entry});
        entry = node;
    }

    std::size_t size() const { return changes.size(); }

    /// Takes back all entries behind the first `count`, the last one first.
    void takeBackTo(std::size_t count) {
        for (; changes.size() > count; changes.pop_back()) {
            const Change& last = changes.back();
            if (last.before == nullptr) {
                table.erase(last.name);
            } else {
                table[last.name] = last.before;
            }
        }
    }

private:
    struct Change {
        std::string name;
        Node* before;  ///< Null if the name was new.
    };

    Table& table;
    std::vector<Change> changes;
};
