// Fuzzers of libFuzzer, of which the environment's FUZZER names one; see scripts/fuzz.
//
//     operations   any operation of operations.h on any bytes; sums of products against long double
//     cipher       a sequence of calls against the modes as their formulas have them
//     tree         a sequence of calls against lists of numbers
//     mesh         the reader of the examples, which may refuse but not fail otherwise
//     scene        their reader of scenes likewise; a scene that it takes is what its header says
//     options      their options likewise; a camera that they make shows its target in the middle

#include "common/camera.h"
#include "common/mesh.h"
#include "common/options.h"
#include "common/run.h"
#include "operations.h"
#include "scene/graph.h"

#include <vertra/foundation/tree.h>

#include <fuzzer/FuzzedDataProvider.h>

#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <limits>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace bits {
namespace {

void Require(bool holds, std::string_view what) {
    if (holds) return;
    std::fprintf(stderr, "fuzz: wrong: %.*s\n", int(what.size()), what.data());
    std::abort();
}

/// Arguments from the input's bytes, then zeros; tame ones are 0 or lie within 2^-16 and 2^16.
struct Source {
    FuzzedDataProvider& data;
    bool tame;
    std::vector<double> drawn;

    template <class T>
    [[gnu::noinline]] void Scalars(T* scalars, std::size_t count) {
        for (; count > 0; --count, ++scalars) {
            *scalars = 0;
            data.ConsumeData(scalars, sizeof(T));
            if (tame) {
                int exponent = 0;
                T const mantissa = std::isfinite(*scalars) ? std::frexp(*scalars, &exponent) : T(0);
                *scalars = std::ldexp(mantissa, exponent % 16);
            }
            drawn.push_back(*scalars);
        }
    }
    [[gnu::noinline]] unsigned int Word() { return data.ConsumeIntegral<unsigned int>(); }
};
struct Sink {
    std::vector<double> results;

    [[gnu::noinline]] void Scalars(auto const* scalars, std::size_t count) {
        results.insert(results.end(), scalars, scalars + count);
    }
    void Number(std::int64_t) {}
};

struct Sum {
    long double value = 0, absolute = 0;
    void operator+=(long double product) {
        value += product;
        absolute += std::abs(product);
    }
};
using Arguments = std::vector<long double>;
/// Result i of an operation as a sum of products.
using Formula = Sum (*)(Arguments const& a, std::size_t i);

template <std::size_t n>
Sum Dot(Arguments const& a, std::size_t) {
    Sum sum;
    for (std::size_t k = 0; k < n; ++k) sum += a[k] * a[a.size() - n + k];  // of one vector: with itself
    return sum;
}
template <std::size_t n>
Sum Cross(Arguments const& a, std::size_t i) {
    std::size_t const j = (i + 1) % 3, k = (i + 2) % 3;
    Sum sum;
    if (i == 3) return sum;
    sum += a[j] * a[n + k];
    sum += -a[k] * a[n + j];
    return sum;
}
Sum Product(Arguments const& a, std::size_t i) {
    Sum sum;
    for (std::size_t k = 0; k < 4; ++k) sum += a[i / 4 * 4 + k] * a[16 + 4 * k + i % 4];
    return sum;
}
/// The point (x, y, z, 1) at v times the column i, or the row, of the matrix at m.
template <std::size_t v, std::size_t m, bool column>
Sum Transformed(Arguments const& a, std::size_t i) {
    Sum sum;
    for (std::size_t k = 0; i < 3 && k < 4; ++k)
        sum += (k < 3 ? a[v + k] : 1) * a[m + (column ? 4 * k + i : 4 * i + k)];
    return sum;
}
Sum Determinant(Arguments const& a, std::size_t) {
    std::array<std::size_t, 4> p{0, 1, 2, 3};
    Sum sum;
    do {
        long double product = 1;
        for (std::size_t i = 0; i < 4; ++i) {
            product *= a[4 * i + p[i]];
            for (std::size_t j = 0; j < i; ++j) product *= p[j] > p[i] ? -1 : 1;
        }
        sum += product;
    } while (std::next_permutation(p.begin(), p.end()));
    return sum;
}

struct Operation {
    std::string name;
    void (*run)(Source&, Sink&);
    long double epsilon;
    Formula formula;
};

/// Collects a family.
struct Visitor {
    std::vector<Operation>& operations;
    std::string family;
    long double epsilon;

    template <class F>
    void operator()(std::string_view name, F const&, Kind = Kind::arithmetic) {
        static std::map<std::string, Formula> const formulas{{"vec4d a * b", Dot<4>},
                                                             {"vec3d a * b", Dot<3>},
                                                             {"vec2d a * b", Dot<2>},
                                                             {"vec4d Len2", Dot<4>},
                                                             {"vec3d Len2", Dot<3>},
                                                             {"vec2d Len2", Dot<2>},
                                                             {"vec4d a ^ b", Cross<4>},
                                                             {"vec3d a ^ b", Cross<3>},
                                                             {"matrix3d a * b", Product},
                                                             {"matrix3d v * m", Transformed<0, 4, true>},
                                                             {"matrix3d m * v", Transformed<16, 0, false>},
                                                             {"matrix3d Det", Determinant}};
        std::string const full = family + " " + std::string(name);
        auto const found = formulas.find(full);
        operations.push_back({full, [](Source& source, Sink& sink) { Run(F(), source, sink); }, epsilon,
                              found == formulas.end() ? nullptr : found->second});
    }
};

template <class T>
void Collect(std::vector<Operation>& operations) {
    VisitFamilies<T>([&](std::string_view family) {
        return Visitor{operations, std::string(family), std::numeric_limits<T>::epsilon()};
    });
}

void FuzzOperations(FuzzedDataProvider& data) {
    static std::vector<Operation> const operations = [] {
        std::vector<Operation> all;
        Collect<float>(all);
        Collect<double>(all);
        for (std::size_t i = all.size(); i-- > 0;)  // those with a formula twenty times as often
            if (all[i].formula != nullptr) all.insert(all.end(), 20, all[i]);
        return all;
    }();
    bool const tame = data.ConsumeBool();
    auto const word = data.ConsumeIntegral<std::uint16_t>();
    auto const& [name, run, epsilon, formula] = operations[word % operations.size()];
    Source source{data, tame, {}};
    Sink sink;
    run(source, sink);
    if (formula == nullptr || !tame) return;
    Arguments const arguments(source.drawn.begin(), source.drawn.end());
    for (std::size_t i = 0; i < sink.results.size(); ++i) {
        Sum const sum = formula(arguments, i);
        Require(std::abs(sink.results[i] - sum.value) <= 8 * epsilon * sum.absolute, name);
    }
}

bool Throws(auto const& call) {
    try {
        call();
    } catch (std::logic_error const&) {
        return true;
    }
    return false;
}

void FuzzCipher(FuzzedDataProvider& data) {
    using Cipher = keel::CBlowFishEncrypterDecrypter;
    using Bytes = std::vector<unsigned char>;
    Cipher cipher, judge;  // the judge is never asked for more than a block in ECB
    Bytes initial(8), chain(8);
    bool keyed = false;
    auto const block = [&](Bytes bytes, bool decrypt) {
        Bytes out(8), back(8);
        decrypt ? judge.Decrypt(bytes.data(), out.data(), 8) : judge.Encrypt(bytes.data(), out.data(), 8);
        decrypt ? judge.Encrypt(out.data(), back.data(), 8) : judge.Decrypt(out.data(), back.data(), 8);
        Require(back == bytes, "a block there and back");
        return out;
    };
    auto const mixed = [](Bytes a, Bytes const& b) {
        for (std::size_t i = 0; i < a.size(); ++i) a[i] ^= b[i];
        return a;
    };
    auto const crypt = [&](int mode, bool decrypt, Bytes const& in) {  // in is a block, the last may be short
        if (mode == Cipher::BLOWFISH_ECB) return block(in, decrypt);
        Bytes const before = chain;
        Bytes out = mode == Cipher::BLOWFISH_CFB ? mixed(in, block(before, false))
                    : decrypt                    ? mixed(block(in, true), before)
                                                 : block(mixed(in, before), false);
        if (in.size() == 8) chain = decrypt ? in : out;
        return out;
    };
    while (data.remaining_bytes() > 0) {
        int const call = data.ConsumeIntegralInRange(0, 7);
        if (call == 0 || !keyed) {
            auto const key =
                data.ConsumeBytes<unsigned char>(data.ConsumeIntegralInRange<std::size_t>(0, 58));
            bool const refused = key.empty() || key.size() > 56;
            Require(Throws([&] { cipher.SetKey(key.data(), key.size()); }) == refused, "the key's size");
            if (!refused) judge.SetKey(key.data(), key.size());
            keyed = keyed || !refused;
        } else if (call == 1) {
            data.ConsumeData(initial.data(), 8);
            cipher.SetInitialChain(initial.data());
            chain = initial;
        } else if (call == 2) {
            cipher.ResetChain();
            chain = initial;
        } else {
            int const mode = data.ConsumeIntegralInRange(0, 2);
            bool const decrypt = data.ConsumeBool(), inPlace = data.ConsumeBool();
            std::size_t const most = data.ConsumeIntegralInRange<std::size_t>(0, 5) * 8 +
                                     (call == 3 ? data.ConsumeIntegralInRange<std::size_t>(0, 7) : 0);
            auto const in = data.ConsumeBytes<unsigned char>(most);
            Bytes out = inPlace ? in : Bytes(in.size(), 0xEE), expected;
            unsigned char const* const from = inPlace ? out.data() : in.data();
            bool const refused = mode != Cipher::BLOWFISH_CFB && in.size() % 8 != 0;
            if (refused) expected = out;
            for (std::size_t at = 0; at < in.size() && !refused; at += 8) {
                auto const begin = in.begin() + std::ptrdiff_t(at);
                Bytes const part(begin, begin + std::ptrdiff_t(std::min<std::size_t>(8, in.size() - at)));
                auto const result = crypt(mode, decrypt, part);
                expected.insert(expected.end(), result.begin(), result.end());
            }
            cipher.SetEncryptionMode(Cipher::BLOWFISH_ENCRYPTION_MODE(mode));
            Require(Throws([&] {
                        decrypt ? cipher.Decrypt(from, out.data(), in.size())
                                : cipher.Encrypt(from, out.data(), in.size());
                    }) == refused,
                    "the text's size");
            Require(out == expected, "the text");
        }
    }
}

template <class Tree>
void FuzzTree(FuzzedDataProvider& data) {
    constexpr bool kShared = !std::is_pointer_v<typename Tree::value_type>;
    struct Model {
        Tree *node, *parent;
        std::vector<std::size_t> children;
        int shares = 1;
    };
    std::vector<Model> models;
    std::vector<bool> destroyed;
    struct Member : Tree {
        std::vector<bool>& gone;
        std::size_t id;
        Member(Tree* parent, std::vector<bool>& gone_, std::size_t id_)
            : Tree(parent), gone(gone_), id(id_) {}
        ~Member() override { gone[id] = true; }
    };
    auto const release = [&](std::size_t id) {
        std::vector<std::size_t> lost{id};
        while (!lost.empty()) {
            auto& [node, parent, children, shares] = models[lost.back()];
            lost.pop_back();
            if (--shares == 0 && kShared) lost.insert(lost.end(), children.begin(), children.end());
        }
    };
    auto const destroy = [&](std::size_t id) {
        delete models[id].node;
        release(id);
    };
    auto const check = [&] {
        for (std::size_t id = 0; id < models.size(); ++id) {
            auto const& [node, parent, children, shares] = models[id];
            Require(destroyed[id] == (shares == 0), "who is destroyed");
            if (destroyed[id]) continue;
            Require(node->size() == children.size() && node->empty() == children.empty(), "size");
            Require(node->GetParent() == parent, "parent");
            bool const same = std::equal(node->begin(), node->end(), children.begin(),
                                         [&](auto const& c, std::size_t n) { return c == models[n].node; });
            Require(same, "children");
        }
    };
    auto const pick = [&](std::size_t size) { return data.ConsumeIntegralInRange<std::size_t>(0, size - 1); };
    while (data.remaining_bytes() > 0 && models.size() < 64) {
        int const call = models.empty() ? 0 : data.ConsumeIntegralInRange(0, 5);
        std::size_t const id = models.empty() ? 0 : pick(models.size());
        if (call == 0 || (call <= 2 && !destroyed[id])) {
            Tree* const parent = call == 0 ? nullptr : models[id].node;
            std::size_t const made = models.size();
            destroyed.push_back(false);
            if (parent != nullptr) models[id].children.push_back(made);
            models.push_back({new Member(parent, destroyed, made), parent, {}});
        } else if (destroyed[id]) {
            continue;
        } else if (call == 3) {
            if (!kShared || models[id].parent == nullptr) destroy(id);
        } else if (auto& [node, parent, children, shares] = models[id]; !children.empty()) {
            std::size_t const i = pick(children.size()), child = children[i];
            auto const place = std::next(node->children.begin(), std::ptrdiff_t(i));
            if (call == 4) {
                children.erase(children.begin() + std::ptrdiff_t(i));
                node->children.erase(place);
                if (kShared) release(child);
            } else if (std::size_t const to = pick(child); !destroyed[to]) {  // an older node: no cycles
                models[to].node->push_back(*place);
                models[to].children.push_back(child);
                if (kShared) ++models[child].shares;
            }
        }
        check();
    }
    for (std::size_t id = 0; id < models.size(); ++id)
        if (!destroyed[id] && (!kShared || models[id].parent == nullptr)) destroy(id);
    check();
}

void FuzzTrees(FuzzedDataProvider& data) {
    static constexpr decltype(&FuzzTree<keel::TreeList>) kKinds[] = {
        FuzzTree<keel::TreeVector>, FuzzTree<keel::TreeList>, FuzzTree<keel::TreeDeque>,
        FuzzTree<keel::SmartTreeVector>, FuzzTree<keel::SmartTreeList>};
    kKinds[data.ConsumeIntegralInRange<std::size_t>(0, 4)](data);
}

/// What the examples may do with their input is to throw an Error.
void Refuse(auto const& call) {
    try {
        call();
    } catch (example::Error const&) {
        return;
    }
}
/// The input as a file of the working directory.
std::string WriteFile(FuzzedDataProvider& data) {
    std::ofstream("input") << data.ConsumeRemainingBytesAsString();
    return "input";
}

void FuzzMesh(FuzzedDataProvider& data) {
    Refuse([&] { example::LoadMesh(WriteFile(data)); });
}

void FuzzScene(FuzzedDataProvider& data) {
    Refuse([&] {
        auto const scene = example::LoadScene(WriteFile(data));
        std::map<example::Node const*, std::size_t> place;
        for (example::Node const* const node : scene.nodes) {
            example::Node const* const parent = node->GetParent();
            Require(parent == nullptr ? place.empty() : place.contains(parent), "a node before its children");
            Require(node->level == (parent == nullptr ? 0 : parent->level + 1), "the level");
            Require(place.emplace(node, place.size()).second, "a node once");
            Require(node->mesh.empty() || scene.box.IsInside(node->box.Center()) == 1, "the box");
        }
    });
}

void FuzzOptions(FuzzedDataProvider& data) {
    static constexpr char const* kNames[] = {"--size", "--eye", "--target", "--orbit"};
    std::vector<std::string> arguments;
    while (data.remaining_bytes() > 0 && arguments.size() < 16) {
        int const kind = data.ConsumeIntegralInRange(0, 11);
        arguments.push_back(kind < 4    ? kNames[kind]
                            : kind < 8  ? std::to_string(data.ConsumeIntegralInRange(-99, 999))
                            : kind < 11 ? std::to_string(data.ConsumeFloatingPointInRange(-2e9, 2e9))
                                        : data.ConsumeRandomLengthString(8));
    }
    Refuse([&] {
        CLI::App app;
        example::Options options;
        options.AddTo(app);
        try {
            app.parse(std::vector<std::string>(arguments.rbegin(), arguments.rend()));
        } catch (CLI::ParseError const&) {
            return;
        }
        auto const camera = options.MakeCamera(AABBox3D<double>(-1, -1, -1, 1, 1, 1),
                                               1.0 * options.size[0] / options.size[1]);
        Vec4D<double> const target(options.target.value_or(std::array<double, 3>{}).data());
        if (Len(target) > 1000 * GetDistanceBetween(camera.eye, target)) return;  // rounding moves it
        Vec4D<double> shown(target);
        shown *= camera.toClip;
        Require(std::hypot(shown.x, shown.y) < 0.001 * shown.w, "the target in the middle");
    });
}

void (*fuzzer)(FuzzedDataProvider&) = nullptr;

}  // namespace
}  // namespace bits

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    static std::map<std::string, void (*)(FuzzedDataProvider&)> const fuzzers{
        {"operations", bits::FuzzOperations},
        {"cipher", bits::FuzzCipher},
        {"tree", bits::FuzzTrees},
        {"mesh", bits::FuzzMesh},
        {"scene", bits::FuzzScene},
        {"options", bits::FuzzOptions}};
    char const* const name = std::getenv("FUZZER");
    bits::fuzzer = fuzzers.at(name != nullptr ? name : "");
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* bytes, std::size_t size) {
    FuzzedDataProvider data(bytes, size);
    bits::fuzzer(data);
    return 0;
}
