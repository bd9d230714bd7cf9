#include "scene/graph.h"

#include "common/run.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <deque>
#include <filesystem>
#include <fstream>
#include <initializer_list>
#include <iterator>
#include <numbers>
#include <sstream>
#include <string_view>

namespace example {
namespace {

using vertra::Matrix3D;
using vertra::Vec4D;

constexpr int kMostLevels = 5000;  // safe for a keel::SmartTreeVector in every build

/// The text as JSON has it, on one line whatever is in it.
std::string Quoted(std::string const& text) { return nlohmann::json(text).dump(); }

/// An object of JSON, which the parser fills by []. A map would let the last of two equal keys win.
template <class Key, class Value, class... Rest>
class UniqueKeys  // NOLINT(misc-no-recursion): copied as deep as JSON is
    : public std::map<Key, Value, Rest...> {
public:
    using std::map<Key, Value, Rest...>::map;
    Value& operator[](Key const& key) {
        auto const [entry, isNew] = this->try_emplace(key);
        if (!isNew) throw Error("the key " + Quoted(key) + " stands twice in one object");
        return entry->second;
    }
};

using Json = nlohmann::basic_json<UniqueKeys>;

/// What the parser says, without the names and numbers that come first.
std::string Reason(std::string_view message) {
    std::size_t end = message.find(": ");
    if (end == std::string_view::npos) end = message.find("] ");
    return std::string(message.substr(end + 2, 200));
}

Json ReadJson(std::string const& path) {
    std::ifstream const file = Open(path);
    std::stringstream text;
    if (!(text << file.rdbuf())) throw Error(path + ": is empty, or cannot be read");

    auto const place = [&path, &text] {  // the line of the last character that was read
        auto const read = text.rdbuf()->pubseekoff(0, std::ios::cur, std::ios::in);
        auto const lines =
            std::ranges::count(text.view().substr(0, static_cast<std::size_t>(read) - 1), '\n');
        return path + ":" + std::to_string(lines + 1) + ": ";
    };
    try {
        return Json::parse(text);
    } catch (Json::exception const& error) {
        throw Error(place() + Reason(error.what()));
    } catch (Error const& error) {
        throw Error(place() + error.what());
    }
}

void CheckFields(Json const& object, std::initializer_list<std::string_view> known) {
    if (!object.is_object()) throw Error("is not an object, with fields in braces");
    for (auto const& [field, value] : object.items()) {
        if (std::ranges::find(known, field) == known.end()) throw Error("unknown field " + Quoted(field));
    }
}

/// Null for a field that is left out.
Json const* Find(Json const& object, char const* field) {
    auto const found = object.find(field);
    return found == object.end() ? nullptr : &*found;
}

std::string ReadText(Json const* value, std::string const& field) {
    std::string text = value != nullptr && value->is_string() ? value->get<std::string>() : "";
    if (text.empty() || std::ranges::any_of(text, [](unsigned char c) { return std::iscntrl(c) != 0; })) {
        throw Error(field + ": needs a text of printable characters");
    }
    return text;
}

template <std::size_t N>
std::array<double, N> ReadNumbers(Json const& value, std::string const& field) {
    auto const fits = [](Json const& n) { return n.is_number() && std::abs(n.get<double>()) <= kFarthest; };
    if (!value.is_array() || value.size() != N || !std::ranges::all_of(value, fits)) {
        throw Error(field + ": needs " + std::to_string(N) + " numbers between -1e9 and 1e9");
    }
    return value.get<std::array<double, N>>();
}

/// Built from the parent down to the node: what is multiplied in last acts first.
Matrix3D<double> ReadTransform(Json const& fields) {
    Json const* const translate = Find(fields, "translate");
    Json const* const rotate = Find(fields, "rotate");
    Json const* const scale = Find(fields, "scale");
    Json const* const matrix = Find(fields, "matrix");
    if (matrix != nullptr) {
        Matrix3D<double> const m(ReadNumbers<16>(*matrix, "matrix").data());
        if (m[3] != 0 || m[7] != 0 || m[11] != 0 || m[15] != 1) {
            throw Error("matrix: needs 0, 0, 0 and 1 as its fourth column");
        }
        if (translate != nullptr || rotate != nullptr || scale != nullptr) {
            throw Error("matrix: stands beside fields whose place it takes");
        }
        return m;
    }

    Matrix3D<double> m;
    if (translate != nullptr) {
        auto const [x, y, z] = ReadNumbers<3>(*translate, "translate");
        m.Trans(x, y, z);
    }
    if (rotate != nullptr) {
        constexpr double kRadians = std::numbers::pi / 180;
        auto const [pitch, yaw, roll] = ReadNumbers<3>(*rotate, "rotate");
        m.YRot(yaw * kRadians);
        m.XRot(pitch * kRadians);
        m.ZRot(roll * kRadians);
    }
    if (scale != nullptr) {
        auto const [x, y, z] = ReadNumbers<3>(*scale, "scale");
        m.Scale(x, y, z);
    }
    return m;
}

std::vector<std::string> ReadChildren(Json const& fields) {
    Json const* const children = Find(fields, "children");
    if (children == nullptr) return {};
    if (!children->is_array()) throw Error("children: needs names in brackets");
    std::vector<std::string> names;
    for (Json const& child : *children) names.push_back(ReadText(&child, "children"));
    return names;
}

std::string InNode(Node const& node, Error const& error) {
    return "node " + Quoted(node.name) + ": " + error.what();
}

/// Makes the tree level by level.
std::unique_ptr<Node> MakeTree(Json const& json) {
    CheckFields(json, {"root", "nodes"});
    Json const* const nodes = Find(json, "nodes");
    if (nodes == nullptr || !nodes->is_object()) throw Error("nodes: needs names with fields, in braces");

    std::map<std::string, Node*> byName;
    std::deque<Node*> open;  // entered, but not read yet
    auto const enter = [&](Node& node, std::string const& name) {
        if (!nodes->contains(name)) throw Error("there is no node " + Quoted(name));
        Node const* const parent = node.GetParent();
        if (auto const other = byName.find(name); other != byName.end()) {
            for (Node const* above = parent; above != nullptr; above = above->GetParent()) {
                if (above == other->second) throw Error("children: cyclic reference to " + Quoted(name));
            }
            throw Error("children: " + Quoted(name) + " is a child of " +
                        Quoted(other->second->GetParent()->name) + " already");
        }
        node.name = name;
        node.level = parent == nullptr ? 0 : parent->level + 1;
        byName.emplace(name, &node);
        open.push_back(&node);
    };

    auto root = std::make_unique<Node>(nullptr);
    enter(*root, ReadText(Find(json, "root"), "root"));
    for (; !open.empty(); open.pop_front()) {
        Node& node = *open.front();
        try {
            Json const& fields = nodes->at(node.name);
            CheckFields(fields, {"mesh", "translate", "rotate", "scale", "matrix", "children"});
            node.toParent = ReadTransform(fields);
            if (Json const* const mesh = Find(fields, "mesh")) node.mesh = ReadText(mesh, "mesh");
            for (std::string const& child : ReadChildren(fields)) {
                if (node.level + 1 == kMostLevels) throw Error("children: there are more than 5000 levels");
                enter(*new Node(&node), child);  // the node owns its child
            }
        } catch (Error const& error) {
            throw Error(InNode(node, error));
        }
    }
    for (auto const& [name, fields] : nodes->items()) {
        if (!byName.contains(name)) throw Error("node " + Quoted(name) + ": is not below the root");
    }
    return root;
}

/// Each node before its children.
std::vector<Node*> Walk(Node& root) {
    std::vector<Node*> order;
    std::vector<Node*> open = {&root};
    while (!open.empty()) {
        Node* const node = open.back();
        open.pop_back();
        order.push_back(node);
        std::transform(node->children.rbegin(), node->children.rend(), std::back_inserter(open),
                       [](auto const& child) { return static_cast<Node*>(child.Get()); });
    }
    return order;
}

bool IsFar(Vec4D<double> const& point) {
    return std::abs(point.x) > kFarthest || std::abs(point.y) > kFarthest || std::abs(point.z) > kFarthest;
}

/// The node's matrix and box in the world, where its parent is already.
void Place(Node& node, std::map<std::string, Mesh> const& meshes) {
    Node const* const parent = node.GetParent();
    node.toWorld = parent == nullptr ? node.toParent : node.toParent * parent->toWorld;
    for (int row = 0; row < 4; ++row) {
        if (IsFar(node.toWorld.Row(row))) throw Error("its matrix in the world has numbers beyond 1e9");
    }
    if (node.mesh.empty()) return;
    std::array<Vec4D<double>, 8> corners;
    meshes.at(node.mesh).box.GetEdges(corners.data());
    for (Vec4D<double> const& corner : corners) node.box.Add(corner * node.toWorld);
    if (IsFar(node.box.min) || IsFar(node.box.max)) throw Error("its box in the world reaches beyond 1e9");
}

}  // namespace

Scene LoadScene(std::string const& path) {
    Json const json = ReadJson(path);
    auto const directory = std::filesystem::path(path).parent_path();
    Scene scene;
    try {
        scene.root = MakeTree(json);
        scene.nodes = Walk(*scene.root);
        for (Node* const node : scene.nodes) {
            try {
                if (!node->mesh.empty() && !scene.meshes.contains(node->mesh)) {
                    scene.meshes.emplace(node->mesh, LoadMesh((directory / node->mesh).string()));
                }
                Place(*node, scene.meshes);
            } catch (Error const& error) {
                throw Error(InNode(*node, error));
            }
            if (!node->mesh.empty()) scene.box.Add(node->box);
        }
        if (scene.meshes.empty()) throw Error("no node has a mesh");
        if (!(Len(scene.box.GetExtent()) > 1 / kFarthest)) throw Error("is too small, or a single point");
    } catch (Error const& error) {
        throw Error(path + ": " + error.what());
    }
    return scene;
}

}  // namespace example
