#include "xml/XmlStepFormat.h"

#include <xxhash.h>

#include <string>
#include <string_view>

namespace vantrell::XmlStepFormat
{

namespace
{

using Kind = XmlTree::Kind;

constexpr int keyChildren = 16;         // what a key is made of
constexpr int lookedAtSiblings = 64;    // on each side
constexpr std::size_t keyTextSize = 64; // bytes of a text

std::uint64_t digestOf(const std::string &bytes)
{
    return XXH3_64bits(bytes.data(), bytes.size());
}

/// The text of an element that holds nothing else; empty for others.
std::string_view onlyText(const XmlTree &tree, XmlNodeId element)
{
    const XmlNodeId child = tree.node(element).firstChild;
    const bool isOnly = child && tree.node(child).isText() && tree.node(child).next == 0;
    return isOnly ? tree.text(tree.node(child).text) : std::string_view();
}

std::string_view nameOf(const XmlTree &tree, XmlNodeId id)
{
    return tree.name(tree.node(id).name).qualified;
}

std::string_view idOf(const XmlTree &tree, XmlNodeId element)
{
    for (XmlNodeId at = tree.node(element).firstAttribute; at; at = tree.node(at).next) {
        if (tree.node(at).kind() == Kind::Attribute && nameOf(tree, at) == "id")
            return tree.text(tree.node(at).text);
    }
    return {};
}

void add(std::string &bytes, std::string_view text)
{
    bytes += text.substr(0, keyTextSize);
    bytes += '\0';
}

} // namespace

std::uint64_t keyOf(const XmlTree &tree, XmlNodeId element, KeyKind *kind)
{
    const std::string_view id = idOf(tree, element);
    std::string bytes(nameOf(tree, element));
    bytes += '\0';
    for (XmlNodeId at = tree.node(element).firstAttribute; at; at = tree.node(at).next) {
        add(bytes, nameOf(tree, at));
        add(bytes, tree.text(tree.node(at).text));
    }
    std::string_view name;
    int seen = 0;
    for (XmlNodeId child = tree.node(element).firstChild; child && seen < keyChildren;
         child = tree.node(child).next, ++seen) {
        if (!tree.node(child).isElement())
            continue;
        const std::string_view childName = nameOf(tree, child);
        const std::string_view text = onlyText(tree, child);
        if (childName == "uuid" && !text.empty()) {
            if (kind)
                *kind = KeyKind::Uuid;
            return digestOf(std::string("uuid:").append(text));
        }
        if (childName == "name")
            name = text;
        add(bytes, childName);
        add(bytes, idOf(tree, child));
        add(bytes, text);
    }
    const bool hasIdName = !id.empty() && !name.empty();
    if (kind)
        *kind = hasIdName ? KeyKind::IdName : KeyKind::Content;
    return hasIdName ? digestOf(std::string("id:").append(id).append(1, '\0').append(name)) : digestOf(bytes);
}

Identity identityOf(const XmlTree &tree, XmlNodeId element)
{
    Identity identity;
    identity.key = keyOf(tree, element, &identity.kind);
    const XmlNameId name = tree.node(element).name;
    std::uint32_t index = 1;
    int seen = 0;
    XmlNodeId at = tree.previousSibling(element);
    for (; at && seen < lookedAtSiblings; at = tree.previousSibling(at), ++seen)
        index += tree.node(at).isElement() && tree.node(at).name == name ? 1 : 0;
    identity.index = at ? 0 : index;
    if (identity.index != 1)
        return identity;
    seen = 0;
    at = tree.node(element).next;
    while (at && seen < lookedAtSiblings && !(tree.node(at).isElement() && tree.node(at).name == name)) {
        at = tree.node(at).next;
        ++seen;
    }
    identity.isOnly = at == 0;
    return identity;
}

std::uint64_t contentOf(const XmlTree &tree, XmlNodeId element)
{
    std::string bytes;
    for (XmlNodeId child = tree.node(element).firstChild; child; child = tree.node(child).next) {
        const XmlTree::Node &node = tree.node(child);
        bytes += char('0' + int(node.kind()));
        bytes += node.isElement() ? nameOf(tree, child) : tree.text(node.text);
        bytes += '\0';
    }
    return digestOf(bytes);
}

} // namespace vantrell::XmlStepFormat
