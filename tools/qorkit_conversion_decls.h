// Writes out the declarations of the unit-conversion routines from the unit tables, so that every
// routine name can be read in a header (src/conversion/QORKITConversionRoutines.h). Used by the
// qorkit_conversion_decls tool, which writes the header, and by the conversion tests, which check
// that the header in the source tree is still what the tables give.
//
// The routine names follow the rules of QORKITConversion.cpp, which defines the routines from the
// same tables: that file is compiled with missing declarations as errors, so a name spelled
// differently here fails the library build.
#pragma once

#include "QORKITConversion.h"

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

namespace qorkit::tools {

// The routines of one quantity, in table order.
struct TRoutineGroup {
    std::string_view Family; // "Dist"
    std::string_view Title; // the quantity's name, "Distance (Length)"
    std::vector<std::string> Names;
};

namespace detail {

inline std::string_view QuantityTitle(std::string_view quantity)
{
#define QORKIT_DECLS_TITLE(member, text)                                                           \
    if (quantity == #member)                                                                       \
        return text;
    QORKIT_UC_CONV_NAMES(QORKIT_DECLS_TITLE)
#undef QORKIT_DECLS_TITLE
    return quantity;
}

// Adds Family<a><separator><b> and Family<b>2<a>; a routine listed twice is kept once (two
// members of one quantity may share a token).
inline void AddPair(TRoutineGroup& group, std::string_view a, std::string_view separator,
                    std::string_view b)
{
    const auto add = [&group](std::string name) {
        if (std::find(group.Names.begin(), group.Names.end(), name) == group.Names.end())
            group.Names.push_back(std::move(name));
    };
    const std::string family(group.Family);
    add(family + std::string(a) + std::string(separator) + std::string(b));
    add(family + std::string(b) + "2" + std::string(a));
}

// The routines of a table row: none for the base unit, its second names and slopes; a token
// ending in a digit is followed by "_2".
inline void AddRow(TRoutineGroup& group, std::string_view kind, std::string_view token,
                   std::string_view via)
{
    if (kind == "Base" || kind == "Same" || kind == "Slope")
        return;
    AddPair(group, token, kind == "LinD" || kind == "DivD" ? "_2" : "2", via);
}

inline TRoutineGroup* GroupOf(std::vector<TRoutineGroup>& groups, std::string_view family)
{
    const auto found = std::find_if(groups.begin(), groups.end(),
                                    [family](const auto& group) { return group.Family == family; });
    return found == groups.end() ? nullptr : &*found;
}

} // namespace detail

// Every conversion routine, one group per quantity with routines, in the order of the quantity
// list. The named pairs and the direct temperature routines join their family's first group.
inline std::vector<TRoutineGroup> ConversionRoutineGroups()
{
    std::vector<TRoutineGroup> groups;
#define QORKIT_DECLS_ROW(F, Kind, member, Tok, Via, Factor, Source)                                \
    detail::AddRow(groups.back(), #Kind, #Tok, #Via);
#define QORKIT_DECLS_TABLE(quantity, stem, names, table, family, array)                            \
    QORKIT_IF_ROUTINES(family)                                                                     \
    (groups.push_back({#family, detail::QuantityTitle(#quantity), {}});                            \
     table(QORKIT_DECLS_ROW, family))
    QORKIT_QUANTITY_LIST(QORKIT_DECLS_TABLE)
#undef QORKIT_DECLS_TABLE
#undef QORKIT_DECLS_ROW

#define QORKIT_DECLS_PAIR(F, A, B, ...)                                                            \
    if (auto* group = detail::GroupOf(groups, #F))                                                 \
        detail::AddPair(*group, #A, "2", #B);
#define QORKIT_DECLS_PAIRS(list, family) list(QORKIT_DECLS_PAIR, family)
    QORKIT_PAIR_LIST(QORKIT_DECLS_PAIRS)
    QORKIT_TEMP_DIRECT_PAIRS(QORKIT_DECLS_PAIR)
#undef QORKIT_DECLS_PAIRS
#undef QORKIT_DECLS_PAIR
    return groups;
}

// The text of QORKITConversionRoutines.h.
inline std::string ConversionRoutinesHeader()
{
    std::string text
        = R"(// The unit-conversion routines, one declaration each, grouped by quantity. A routine converts a
// value from the first unit of its name into the second: DistInches2M(1) is 0.0254.
//
// Generated from the unit tables (QORKITUnitTables.h, QORKITUnitTables2.h) and the routine lists
// of QORKITConversion.h by tools/qorkit_conversion_decls: do not edit. After changing a table,
// regenerate with
//     cmake --build <build directory> --target qorkit_conversion_header
// The list is long and repetitive on purpose: it lets a text search, or an editor that does not
// expand macros, find every routine. The conversion tests fail when it is out of date.
#pragma once

#include "QORKITTypes.h"
#include "qorkit_core_export.h"

namespace qorkit {
)";
    for (const auto& group : ConversionRoutineGroups()) {
        text += "\n// " + std::string(group.Title) + "\n";
        for (const auto& name : group.Names)
            text += "QORKIT_CORE_EXPORT Extended " + name + "(Extended value);\n";
    }
    text += "\n} // namespace qorkit\n";
    return text;
}

} // namespace qorkit::tools
