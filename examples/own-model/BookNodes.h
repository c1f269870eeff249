// SPDX-FileCopyrightText: 2026 The ImportModule authors
// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <iterator>
#include <list>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "Book.h"
#include "framework/datamodel_api/DataModelApi.h"

// The book as the tree that the import library knows. No node holds data: each
// reads and writes a member of the book that it stands for.

/// What a node says that is asked for what it is not.
template <typename Base>
class PlainNode : public Base {
public:
    void prepareUpdate() override {}
    unsigned short getNodeCount() const override { return 0; }
    DMSchemaContext* getSchemaContext() const override {
        static DMSchemaContext context(30); // 30 is 2030, 31 is 1931
        return &context;
    }
    DataType getValue() const override { return {}; }
    bool setValue(const DataType&, const NDX&, int) override { return false; }

protected:
    ~PlainNode() = default;
};

/// One member of the book: how it is read, and how it is written. A write that
/// answers false refuses the value.
struct Member {
    std::function<DataType()> read;
    std::function<bool(const DataType&)> write;
};

Member member(std::string& text);
Member member(int& number);
Member member(bool& flag);
Member member(Day& day);
/// An amount. The contract counts in currency units; this is the one place that converts.
Member member(long long& cents);

class FieldNode final : public PlainNode<Node> {
public:
    explicit FieldNode(Member member) : m_member(std::move(member)) {}
    DataType getValue() const override { return m_member.read(); }
    bool setValue(const DataType& value, const NDX&, int) override { return m_member.write(value); }

private:
    Member m_member;
};

/// A record, or the root: fields by name, and tables by name.
class RecordNode final : public PlainNode<Node> {
public:
    using Members = std::map<std::string, Member>;
    using Tables = std::map<std::string, Node*>;

    explicit RecordNode(const Members& members, Tables tables = {});
    Node* child(const std::string& name) const;

private:
    std::map<std::string, std::unique_ptr<FieldNode>> m_fields;
    Tables m_tables;
};

/// A table, whatever its rows are.
class TableNode : public PlainNode<NodeTable> {
public:
    virtual RecordNode* row(unsigned number) const = 0; ///< from 1; null where there is none
    virtual void append() = 0;
    virtual void remove(const Node* row) = 0;

protected:
    ~TableNode() = default;
};

/// A list of the book as a table. The rows of an opened book are wrapped when the
/// table is made, later ones as they are appended.
template <typename Item>
class ListNode final : public TableNode {
public:
    using MembersOf = RecordNode::Members (*)(Item&);

    ListNode(std::list<Item>& items, MembersOf membersOf) : m_items(items), m_membersOf(membersOf) {
        for (auto item = items.begin(); item != items.end(); ++item)
            wrap(item);
    }

    unsigned short getNodeCount() const override { return static_cast<unsigned short>(m_rows.size()); }
    RecordNode* row(unsigned number) const override {
        return number >= 1 && number <= m_rows.size() ? m_rows[number - 1].node.get() : nullptr;
    }
    void append() override {
        m_items.emplace_back();
        wrap(std::prev(m_items.end()));
    }
    void remove(const Node* row) override {
        for (auto found = m_rows.begin(); found != m_rows.end(); ++found) {
            if (found->node.get() == row) {
                m_items.erase(found->item);
                m_rows.erase(found);
                return;
            }
        }
    }

private:
    struct Row {
        typename std::list<Item>::iterator item;
        std::unique_ptr<RecordNode> node;
    };

    void wrap(typename std::list<Item>::iterator item) {
        m_rows.push_back({item, std::make_unique<RecordNode>(m_membersOf(*item))});
    }

    std::list<Item>& m_items;
    MembersOf m_membersOf;
    std::vector<Row> m_rows;
};

/// The tree over a book, which must outlive it.
class BookTree {
public:
    explicit BookTree(Book& book);
    Node* root() { return &m_root; }

private:
    ListNode<Booking> m_bookings;
    ListNode<ImportNote> m_imports;
    RecordNode m_root;
};
