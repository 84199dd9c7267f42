// The rows of parameterrows.h themselves, for the sources of this room alone.
//
// A row is written with its options beside it. The compiler moves the options of all rows into one array, to which the
// finished rows point, so that the program carries no unused places for options.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <span>
#include <string_view>

#include "parameters/parameterrows.h"

namespace tarq::parameterdata {

using Section = ParameterSection;
using Control = ParameterControl;
using OptionList = std::initializer_list<ParameterOption>;

/// A row as it is written down. Exists at compile time only.
struct RowSource {
    ParameterRow row;
    std::array<ParameterOption, maximumOptionCount> options{};
    std::size_t optionCount = 0;
};

template <class Number>
struct Limits {
    Number minimum;
    Number maximum;
};

inline constexpr std::int32_t longMaximum = std::numeric_limits<std::int32_t>::max();

consteval RowSource row(std::string_view name, ParameterType type, Section section, Control control,
                        std::string_view description, OptionList options) {
    RowSource source;
    source.row.name = name;
    source.row.type = type;
    source.row.section = section;
    source.row.control = control;
    source.row.description = description;
    for (const ParameterOption& option : options) source.options.at(source.optionCount++) = option;
    return source;
}

consteval RowSource longRow(std::string_view name, Limits<std::int32_t> limits, std::int32_t defaultValue,
                            Section section, Control control, std::string_view description, OptionList options = {}) {
    RowSource source = row(name, ParameterType::Long, section, control, description, options);
    source.row.longMinimum = limits.minimum;
    source.row.longMaximum = limits.maximum;
    source.row.longDefault = defaultValue;
    return source;
}

consteval RowSource doubleRow(std::string_view name, Limits<double> limits, double defaultValue, Section section,
                              Control control, std::string_view description) {
    RowSource source = row(name, ParameterType::Double, section, control, description, {});
    source.row.doubleMinimum = limits.minimum;
    source.row.doubleMaximum = limits.maximum;
    source.row.doubleDefault = defaultValue;
    return source;
}

consteval RowSource stringRow(std::string_view name, std::int32_t maxLength, std::string_view defaultValue,
                              Section section, Control control, std::string_view description) {
    RowSource source = row(name, ParameterType::String, section, control, description, {});
    source.row.stringMaxLength = maxLength;
    source.row.stringDefault = defaultValue;
    return source;
}

consteval RowSource offPage(RowSource source) {
    source.row.onPage = false;
    return source;
}

inline constexpr std::array<RowSource, parameterCount> sources{
    doubleRow("xabgap", {0.0, tableInfinity}, 0.0, Section::Resources, Control::EditField,
              "Absolute gap. The Branch and Bound search will be stopped if |xzlbnd - xzubnd| <= xabgap."),
    longRow("xadcol", {0, longMaximum}, 0, Section::Resources, Control::EditField,
            "Maximum number of additional columns for extending the LP/IP model."),
    longRow("xadnon", {0, longMaximum}, 400000, Section::Resources, Control::EditField,
            "Maximum number of additional nonzeros for LP- and IP-preprocessing."),
    longRow("xadrow", {0, longMaximum}, 2000, Section::Resources, Control::EditField,
            "Maximum number of additional constraints for IP preprocessing."),
    longRow("xautom", {0, 1}, 1, Section::Lp, Control::CheckBox,
            "If selected: In case of too slow convergence in phase 2, full Devex will be switched on if fill of "
            "last factorization > xminfi and xn/xm < xxndxm. In phase 1 xchztp is set to 0, if it was 1 before.",
            {{1, "Automatic adaptation of pricing strategy."}, {0, ""}}),
    longRow("xbatyp", {1, 3}, 1, Section::Lp, Control::RadioGroup,
            "If you use the internal format for storing, the model may not be changed at re-start. MPS format "
            "models can be changed before re-start and can also be exchanged with other optimization systems.",
            {{1, "Internal basis format in file xfnsav."},
             {2, "MPS format in file xfnbao."},
             {3, "Save both formats in xfnsav/xfnbao"}}),
    doubleRow("xbckpa", {0.0, 1.0}, 0.999, Section::Ip, Control::EditField,
              "Backtracking parameter for mixed lifo node selection strategy (xnodse<0 and xlifo=2)."),
    longRow("xbndha", {0, 2}, 0, Section::Lp, Control::RadioGroup,
            "Determines if reduced bounds will be kept after having finished preprocessing.",
            {{0, "Relax reduced bounds after LP preprocessing."},
             {1, "Keep reduced bounds after LP preprocessing."},
             {2, "Use extended bound reduction."}}),
    longRow("xbndrd", {0, 2}, 1, Section::Ip, Control::EditField,
            "Level of bound reduction during supernode processing. See manual for details."),
    stringRow("xbound", 32, "", Section::None, Control::None,
              "Name of the BOUND vector in MPS input files. If blank, the first vector in the BOUNDS-section will be "
              "taken."),
    longRow("xbrheu", {0, 6}, 5, Section::Ip, Control::ComboBox,
            "Branching heuristic. Determines how a branching variable will be chosen (new B+B).",
            {{0, "When minimizing (maximizing), set fract. IP var with max (min) cost to floor."},
             {1, "When minimizing (maximizing), set fract. IP var with min (max) cost to ceiling."},
             {2, "Branch on most fractional IP var. Tie breaking rule is the best cost."},
             {3, "When minimizing (maximizing), branch on IP var with largest (smallest) cost."},
             {5, "Branch on fractional IP var with largest weighted pseudo costs."},
             {6, "Branch on fractional IP var with the largest smallest pseudo costs."}}),
    longRow("xcbnnd", {0, longMaximum}, 0, Section::Resources, Control::EditField,
            "Node callback frequency. Jump to callback function each xcbnnd nodes in B+B. 0 if automatic."),
    longRow("xchksw", {0, 1}, 0, Section::Other, Control::CheckBox,
            "Check includes looking for duplicate column and row names and various numeric tests.",
            {{1, "Check internal model syntactically before optimization."}, {0, ""}}),
    longRow("xclict", {0, 2}, 2, Section::Ip, Control::RadioGroup,
            "Determines how clique cuts are used during supernode processing.",
            {{0, "No cliques are derived."},
             {1, "All cliques are used in logical tests."},
             {2, "Additionally to option 2, violated Clique Cuts at Supernodes will be added."}}),
    longRow("xcored", {0, 2}, 1, Section::Ip, Control::RadioGroup, "Sets type of coefficient reduction.",
            {{0, "No coefficient reduction."},
             {1, "Simple coefficient reduction."},
             {2, "Extended coefficient reduction, based on probing."}}),
    longRow("xcovct", {0, 3}, 2, Section::Ip, Control::ComboBox,
            "Determines if and how Cover Cuts are derived at Supernodes and during branch-and-cut.",
            {{0, "No Cover Cuts are derived."},
             {1, "Violated Cover Cuts are derived only in the first Supernode branch."},
             {2, "Cover Cuts are only derived when the objective function value improves."},
             {3, "Cover Cuts will be derived at each Supernode."}}),
    stringRow("xdata", 32, "", Section::None, Control::None,
              "Name of data deck to be read in MPS files. If empty the first deck will be read."),
    longRow("xdimcn", {0, 1}, 1, Section::Other, Control::RadioGroup,
            "Sets the maximum model dimensions used when reading MPS files.",
            {{0, "Take xnmax, xmmax, xnzmax as maximal model dimensions."},
             {1, "Automatic setting of max model dimensions in MPS convert."}}),
    longRow("xdjscl", {0, 3}, 1, Section::Lp, Control::ComboBox, "Scaling of reduced costs.",
            {{0, "No scaling of reduced costs in pricing."},
             {1, "Scaling of reduced costs of non-basis variables (modified Devex)."},
             {2, "Full Devex."},
             {3, "Steepest Edge Pricing."}}),
    doubleRow("xdropf", {0.0, 1e-9}, 1e-12, Section::Lp, Control::EditField,
              "An element in a row or col of the LU factorization will be set to 0 if it is less or equal xdropf "
              "multiplied with the absolute value of the biggest element in the row or col."),
    doubleRow("xdropm", {0.0, 1e-4}, 1e-7, Section::Lp, Control::EditField,
              "Any element in the input data that is less than xdropm, will be set to 0."),
    longRow("xeucrd", {0, 1}, 1, Section::Ip, Control::CheckBox,
            "Sets use of Euclidean reduction of constraints during supernode processing.",
            {{1, "Use Euclidean reduction of constraints."}, {0, ""}}),
    doubleRow("xfiltl", {0.0, tableInfinity}, 4.0, Section::Lp, Control::EditField,
              "Determines how much fill is tolerated when using the aggregator during LP-preprocessing."),
    offPage(stringRow("xfnbai", 256, "", Section::Files, Control::EditField,
                      "File name of a basis in MPS format, that will be started before optimization.")),
    stringRow("xfnbao", 256, "", Section::Files, Control::EditField,
              "File name where basis will be saved if xfrbas=1 or xfrbas=3."),
    stringRow("xfnips", 256, "", Section::Files, Control::EditField, "File name for IP solution file."),
    stringRow("xfnlog", 256, "", Section::Files, Control::EditField, "File name for TARQ log file."),
    stringRow("xfnlps", 256, "", Section::Files, Control::EditField, "File name for LP solution file."),
    stringRow("xfnmps", 256, "", Section::Files, Control::EditField, "File name for MPS file."),
    stringRow("xfnmsg", 256, "", Section::Files, Control::EditField, "File name for TARQ message file."),
    stringRow("xfnpro", 256, "", Section::Files, Control::EditField, "File name of TARQ profile."),
    stringRow("xfnsav", 256, "", Section::Files, Control::EditField, "File name of basis in internal format."),
    stringRow("xfnsta", 256, "", Section::Files, Control::EditField, "File name of TARQ statistic file."),
    longRow("xfrbas", {-1, longMaximum}, -1, Section::None, Control::None,
            "Basis will be saved after p Iterations. Never if -1."),
    longRow("xfrinv", {1, 200}, 100, Section::Lp, Control::EditField,
            "Iteration frequency of LU factorization. After xfrinv iterations a new LU factorization of the basis "
            "will be built."),
    longRow("xfrite", {0, longMaximum}, 0, Section::Resources, Control::EditField,
            "Number of simplex iterations until next break in LP optimization. No break if 0."),
    longRow("xfrlog", {0, longMaximum}, 0, Section::Other, Control::EditField,
            "Number of simplex iterations after which a log line will be written if xoutlv=3."),
    longRow("xfrnds", {-1, longMaximum}, -1, Section::Resources, Control::EditField,
            "Number of nodes in IP optimization until next break. No break if -1."),
    longRow("xfrnod", {-1, longMaximum}, -1, Section::Ip, Control::EditField,
            "Number of nodes after which row bounds will be recalculated to avoid rounding errors. Never if -1."),
    doubleRow("xglgap", {0.0, 1.0}, 1e-4, Section::Resources, Control::EditField,
              "Relative global gap. The Branch-and-Cut search will be stopped if the relative difference between the "
              "objective function value of the best integer solution xzbest and the objective function value of the "
              "best waiting node xzlbnd is less than xglgap."),
    longRow("xgomct", {0, 4}, 2, Section::Ip, Control::EditField,
            "Derive Gomory Mixed-Integer Cuts during Supernode processing. 0 if no cuts will be derived."),
    longRow("xgommc", {0, longMaximum}, 6, Section::Ip, Control::EditField,
            "Sets the density level for taking Gomory cuts into the matrix.The smaller xgommc, the more restrictive "
            "is the use of cuts."),
    longRow("xheutp", {0, 6}, 6, Section::Ip, Control::ComboBox,
            "Sets the heuristic for solving the initial solution (new B+B).",
            {{0, "No heuristic is used."},
             {1, "Total Rounding."},
             {2, "Local Branching."},
             {3, "Relaxation Induced Neighborhood Search (RINS) heuristic."},
             {4, "Relaxation-based Search Space (RSS) heuristic with LIFO."},
             {5, "RSS heuristic with xnodse=3."},
             {6, "RSS heuristic with xnodse=3 and total rounding."}}),
    longRow("xhfinb", {0, 1}, 1, Section::Ip, Control::CheckBox,
            "Determine whether a part of the none basics are fixed before the heuristic will start.Only valid for "
            "new B+B (v8.x) and Local Branching-, RINS- and RSS-heuristic.",
            {{1, "Fix none basics before heuristic."}, {0, ""}}),
    doubleRow("xhgap", {0.0, tableInfinity}, 0.05, Section::Ip, Control::EditField,
              "Heuristic gap. If the global gap in the heuristic is smaller than xhgap, the heuristic will be "
              "terminated. Only valid for new B+B (v8.x) and if a heuristic is used."),
    doubleRow("xhrdlb", {-1.0, 1.0}, -1.0, Section::Ip, Control::EditField,
              "A fractional integer variable will be rounded down, if its fractional part is smaller than xhrdlb. "
              "Only valid for new B+B and for the RINS- and RSS-heuristic. Default -1 for automatic calculation."),
    doubleRow("xhrdub", {-1.0, 1.0}, -1.0, Section::Ip, Control::EditField,
              "A fractional integer variable will be rounded up, if its fractional part is greater than xhrdub. Only "
              "valid for new B+B and for the RSS-heuristic. Default -1 for automatic calculation."),
    doubleRow("xhtlim", {0.0, tableInfinity}, 10.0, Section::Ip, Control::EditField,
              "Time limit in heuristic. Only valid for new B+B (v8.x) and if a heuristic is used."),
    longRow("ximbnd", {0, 2}, 2, Section::Ip, Control::RadioGroup,
            "Tighten bounds of continuous variables by bound implications (only mixed integer models).",
            {{0, "Don't use bound implications."},
             {1, "Use bound implications only in supernode processing."},
             {2, "Use bound implications also in Branch-and-Bound process."}}),
    longRow("ximpli", {0, 2}, 2, Section::Ip, Control::RadioGroup,
            "Determines how implications that have been derived by probing will be used during supernode "
            "processing.",
            {{0, "No implications will be derived."},
             {1, "All implications are derived and later used in all logical tests."},
             {2, "Additionally check if Implication Cut Levels violate LP solutions at Supernodes."}}),
    longRow("ximrrw", {0, 1}, 0, Section::None, Control::None,
            "Model in main memory will be written to the hard disk and retrieved after the optimization run.",
            {{1, "Model will be saved before optimization for later changes."}, {0, ""}}),
    doubleRow("xipbnd", {-tableInfinity, tableInfinity}, tableInfinity, Section::None, Control::None,
              "Only integer solutions are searched for, that are better than xipbnd. When minimizing (maximizing) a "
              "value of an IP solution must be smaller (bigger) than xipbnd."),
    doubleRow("xipdua", {-tableInfinity, tableInfinity}, 150.0, Section::Lp, Control::EditField,
              "Specifies a percent value. If the ratio of the number of active rows and columns after "
              "LP-preprocessing is larger than xipdua percent then the IPM-engine solves the dual LP."),
    longRow("xiplpt", {0, 1}, 1, Section::Ip, Control::RadioGroup,
            "Sets algorithm used for solving the LP at each node during IP phase.",
            {{0, "Primal Simplex."}, {1, "Dual Simplex."}}),
    longRow("xipmem", {0, 1}, 0, Section::Lp, Control::RadioGroup,
            "Specifies how the memory for the Cholesky factorization of the IPM-engine is allocated.",
            {{0, "Allocate form TARQ memory block."}, {1, "Allocate dynamically outside of TARQ memory block."}}),
    longRow("xipxov", {0, 3}, 2, Section::Lp, Control::ComboBox, "Sets crossover handling.",
            {{0, "No x-over after solving the starting LP with IPM."},
             {1, "Only primal part of x-over."},
             {2, "Primal and dual part of x-over and primal simplex to finish."},
             {3, "Primal and dual part of x-over and dual simplex to finish."}}),
    longRow("xlifo", {0, 2}, 1, Section::Ip, Control::RadioGroup,
            "Set type of mixed LIFO. Mixed LIFO is activated if xnodse < 0. Only valid for new B+B (v8).",
            {{0, "End LIFO, if node limit is reached."},
             {1, "End LIFO, if LP inf. or integer."},
             {2, "End LIFO, if functional value is greater than critical value."}}),
    longRow("xlocs", {0, 5}, 0, Section::Ip, Control::ComboBox, "Set local search type. Only valid for new B+B (v8).",
            {{0, "No local search."},
             {1, "Relaxation induced neighborhood search (RINS)."},
             {2, "Local branching."},
             {3, "Rounding in branch and bound."},
             {4, "Total rounding at every xnlbab nodes."},
             {5, "Rounding in branch and bound."}}),
    longRow("xlotst", {0, 3}, 2, Section::Ip, Control::RadioGroup,
            "Set the level of bound reduction for continuous variables. (Options apply to new B+B, see manual for "
            "old B+B.)",
            {{0, "No bound reduction of continuous variables. (0)"},
             {1, "All bounds of continuous variables are reduced. (1)"},
             {2, "Only bounds of cont. vars with free int vars in its rows are reduced. (2)"},
             {3, "Only bounds of cont. vars with change >= 0.05 are reduced. (3)"}}),
    doubleRow("xlpgap", {0.0, tableInfinity}, tableInfinity, Section::Ip, Control::EditField,
              "If xipbnd = |xinf| and xlpgap < xinf, then xzubnd = xfunct * |1 + xlpgap| * xsscal will be set after "
              "the first supernode processing."),
    longRow("xlpmip", {0, 1}, 1, Section::Ip, Control::RadioGroup,
            "Determines if an IP model will be solved only as an LP or if the IP phase starts afterwards.",
            {{0, "Solve only the LP-relaxation of an IP model."},
             {1, "Solve IP-model as such after the initial LP optimization."}}),
    longRow("xlptyp", {0, 4}, 2, Section::Lp, Control::RadioGroup, "Sets algorithm for solving the initial LP model.",
            {{0, "Primal Simplex."}, {2, "Dual Simplex."}, {4, "Interior Points Method."}}),
    doubleRow("xluctr", {1.1, 5.0}, 2.0, Section::Lp, Control::EditField,
              "A new LU factorization will be calculated if the number of elements in the actual LU divided through "
              "the number of elements of the last LU factorization is greater than xluctr."),
    longRow("xmallc", {0, 1}, 1, Section::None, Control::None, ""),
    doubleRow("xminfi", {0.0, tableInfinity}, 0.2, Section::Lp, Control::EditField,
              "Full Devex will be used at slow convergence if xautom = 1 and xn/xm < xxndxm and if fill of last "
              "factorization > xminfi."),
    stringRow("xminmx", 8, "min", Section::Direction, Control::RadioGroup, ""),
    longRow("xmiter", {0, longMaximum}, 20000000, Section::Resources, Control::EditField,
            "Max number of iterations, optimization will be stopped after xmiter iterations."),
    longRow("xmitip", {0, longMaximum}, 30000, Section::Resources, Control::EditField,
            "Maximum number of simplex iterations per node during Branch-and-Bound process."),
    longRow("xmirct", {0, 3}, 3, Section::Ip, Control::RadioGroup,
            "Determines if mixed integer rounding cuts should be derived during the super node processing.",
            {{0, "MIR-cuts are not used."},
             {1, "MIR-cuts only at first IP-preprocessing and only from original constraints."},
             {2, "MIR-cuts at every IP-preprocessing but only from original constraints."},
             {3, "MIR-cuts at every IP-preprocessing and all active constraints are considered."}}),
    longRow("xmmax", {1, longMaximum}, 30000, Section::Resources, Control::EditField, "Max number of rows."),
    longRow("xmnheu", {0, longMaximum}, 50, Section::Ip, Control::EditField,
            "Number of nodes rendered by the heuristic during B+B process. Only relevant if xheutp > 0."),
    longRow("xmreal", {0, 2000}, 0, Section::Resources, Control::EditField,
            "Memory in MB, that is used by TARQ for dynamic allocation. xmreal=0 for automatic allocation."),
    doubleRow("xmxdsk", {0.0, tableInfinity}, 100.0, Section::Resources, Control::EditField,
              "Max size in MB of hard disk space used for storing node tables."),
    longRow("xmxint", {0, longMaximum}, 32767, Section::Resources, Control::EditField,
            "The branch-and-cut search is terminated when the value of xmxint is reached independent of any other "
            "search limitation such as CP-time, node limit, disk space etc."),
    doubleRow("xmxmin", {0.0, tableInfinity}, 120.0, Section::Resources, Control::EditField,
              "Max time in minutes spent in the B+B process, IP optimization will be stopped after xmxmin minutes."),
    longRow("xmxnod", {0, longMaximum}, 9999999, Section::Resources, Control::EditField,
            "Max number of nodes processed in B+B, IP optimization will be stopped after xmxnod nodes."),
    longRow("xmxpsu", {0, longMaximum}, 10, Section::Resources, Control::EditField,
            "Max number of passes in supernode processing for improving the strength of the LP Relaxation."),
    doubleRow("xmxtlp", {0.0, tableInfinity}, tableInfinity, Section::Resources, Control::EditField,
              "Max time in minutes used for solving the initial LP, optimization will be stopped after xmxlpt "
              "minutes."),
    longRow("xnewbb", {0, 1}, 1, Section::Ip, Control::CheckBox,
            "Indicate whether new branch and bound algorithm is executed.(Old B+B parameters cannot be set in this "
            "property page)",
            {{1, "Use new B+B (v8)."}, {0, ""}}),
    longRow("xnlbab", {-1, longMaximum}, -1, Section::Ip, Control::EditField,
            "Node limit in branch and bound before the next local search or mixed LIFO iteration starts.Only valid "
            "for new B+B and only relevant if xnodse<0 or xlocs>0. Default -1 for automatic choice."),
    longRow("xnlstr", {0, longMaximum}, 1000, Section::Ip, Control::EditField,
            "Node limit during local search heuristic or mixed lifo strategy.Only valid for new B+B (v8) and only "
            "relevant if xnodse < 0 or xlocs > 0."),
    longRow("xnodbf", {-1, longMaximum}, 0, Section::Ip, Control::EditField,
            "Combine a node selection strategy (xnodse>1) with best first selection. See manual for details."),
    longRow("xnodse", {-7, 7}, 3, Section::Ip, Control::EditField,
            "Sets the node selection strategy in B+B process. See manual for details."),
    longRow("xnogap", {0, 1}, 0, Section::Ip, Control::CheckBox,
            "Prevent recomputation of xrimpr and xglgap if IP model has large objective function.For details see "
            "handbook.",
            {{1, "Prevent recomputation xrimpr and xglgap."}, {0, ""}}),
    longRow("xnoitb", {0, 1}, 1, Section::Ip, Control::CheckBox,
            "Indicate whether integer table is build. Only valid for new B+B (v8).",
            {{0, "Build integer table."}, {1, ""}}),
    longRow("xnopre", {0, 1}, 1, Section::Ip, Control::CheckBox, "Allows to turn off IP-Preprocessing.",
            {{1, "IP-Preprocessing."}, {0, ""}}),
    longRow("xnproc", {1, longMaximum}, 1, Section::Lp, Control::EditField,
            "Specifies number of processors to be used for the execution of the IPM-engine on a multiprocessor "
            "system."),
    longRow("xnwluf", {0, 1}, 1, Section::Lp, Control::CheckBox,
            "The new LU-factorization uses memory more efficiently, but the old one offers a small advantage on "
            "very sparse models.",
            {{1, "Use new LU-factorization."}, {0, ""}}),
    longRow("xnwluu", {0, 1}, 0, Section::Lp, Control::CheckBox,
            "The new LU-update has the same advantages as the new LU-factorization, but the old one offers  a small "
            "advantage on very sparse models.",
            {{1, "Use new LU-update in TARQ 8.x."}, {0, ""}}),
    stringRow("xobj", 32, "", Section::None, Control::None, "Name of vector for objective function in MPS files."),
    longRow("xoripm", {0, 4}, 0, Section::Lp, Control::ComboBox,
            "Ordering strategy for the Cholesky factorization when using the interior point method.",
            {{0, "Automatic ordering."},
             {1, "Minimum degree."},
             {2, "Minimum local fill in."},
             {3, "Nested dissection."},
             {4, "Multi section ordering."}}),
    longRow("xoutlv", {0, 3}, 1, Section::Other, Control::ComboBox, "Output level for log files.",
            {{0, "No logging, no statistics."},
             {1, "Write statistic file after optimization, no log file."},
             {2, "Write statistic file and log file."},
             {3, "Write statistics and extended log file."}}),
    longRow("xoutsl", {0, 2}, 2, Section::Other, Control::RadioGroup,
            "Determines if solutions will be written to files xfnlps and xfnips.",
            {{0, "No solutions files."},
             {1, "Only column section is written to solution files."},
             {2, "Full solution output."}}),
    longRow("xparnd", {-3, 3}, -2, Section::Ip, Control::EditField,
            "Set the partitioning type for the node table. See manual for details."),
    longRow("xparnl", {1, longMaximum}, 1000, Section::Ip, Control::EditField,
            "Node limit for a partitioning update, if xparnd <> 0. Only valid for new B+B (v8)."),
    longRow("xpcini", {0, 2}, 1, Section::Ip, Control::RadioGroup,
            "Set the initialization type for the computation of pseudo costs.",
            {{0, "Initialize pseudo costs to zero."},
             {1, "Initialize pseudo costs to variable cost."},
             {2, "Solve LP partially to compute pseudo costs (not activated)."}}),
    longRow("xpreme", {0, longMaximum}, 0, Section::Lp, Control::EditField,
            "Detail strategy for LP-preprocessing. See manual for details and how to set bits."),
    longRow("xprlev", {0, 2}, 1, Section::Ip, Control::RadioGroup,
            "Probing strategy. Binary variables will be set to 0 or 1 on a trial basis.",
            {{0, "Probing only for fractional 0/1 variables."},
             {1, "Probing for all 0/1 variables, but only at supernodes."},
             {2, "Probing for all 0/1 variables at each node of the B+B tree."}}),
    stringRow("xrange", 32, "", Section::None, Control::None, "Name of RANGE vector in MPS models."),
    longRow("xranha", {0, 1}, 0, Section::Ip, Control::CheckBox,
            "Sets conversion of Range constraints that contain integer variables .",
            {{1, "Range constr. with int. vars are converted into two separate constraints."}, {0, ""}}),
    longRow("xrcmax", {0, longMaximum}, 0, Section::None, Control::None,
            "Manages memory capacity for names of rows and columns."),
    longRow("xrduce", {0, 2}, 2, Section::Lp, Control::CheckBox, "", {{2, "Carry out LP-preprocessing."}, {0, ""}}),
    stringRow("xrhs", 32, "", Section::None, Control::None, "Name of RHS vector in MPS models."),
    doubleRow("xrimpr", {0.0, 1.0}, 1e-4, Section::Ip, Control::EditField,
              "The next integer solution must be xrimpr*100% better than the last found ip solution."),
    longRow("xscale", {0, 2}, 2, Section::Other, Control::RadioGroup,
            "Determines if coefficient matrix will be scaled before optimization.",
            {{0, "No scaling."}, {1, "Row-wise scaling."}, {2, "Row- and column-wise scaling."}}),
    longRow("xstart", {0, 3}, 1, Section::None, Control::None, ""),
    doubleRow("xtold1", {1e-10, 0.1}, 1e-7, Section::Tolerances, Control::EditField,
              "Dual feasibility tolerance in phase 1. Reduced costs must be greater than xtold1 for the variable to "
              "be taken into the basis."),
    doubleRow("xtold2", {1e-10, 0.1}, 1e-7, Section::Tolerances, Control::EditField,
              "Dual feasibility tolerance in phase 2. Reduced costs must be greater than xtold2 for the variable to "
              "be taken into the basis."),
    doubleRow("xtolin", {1e-6, 0.001}, 1e-5, Section::Tolerances, Control::EditField,
              "A solution for an integer variable is only regarded as integer if it is less than xtolin away from an "
              "integer value."),
    doubleRow("xtolpv", {1e-8, 0.001}, 1e-7, Section::Tolerances, Control::EditField,
              "Minimum pivot size for simplex."),
    doubleRow("xtolqi", {1e-6, 0.1}, 0.05, Section::Tolerances, Control::EditField,
              "A solution for an integer variable is only regarded as quasi integer if it is less than xtolqi away "
              "from an integer value."),
    doubleRow("xtolr1", {0.0, 1e-7}, 1e-12, Section::Tolerances, Control::EditField,
              "Primal relative feasibility tolerance in phase 1."),
    doubleRow("xtolr2", {0.0, 1e-7}, 1e-14, Section::Tolerances, Control::EditField,
              "Primal relative feasibility tolerance in phase 2."),
    doubleRow("xtolre", {0.0, 1e-7}, 1e-10, Section::Tolerances, Control::EditField,
              "Primal relative feasibility tolerance."),
    doubleRow("xtolx", {1e-9, 0.001}, 1e-4, Section::Tolerances, Control::EditField,
              "Primal absolute feasibility tolerance."),
    doubleRow("xtolx1", {1e-9, 0.001}, 1e-6, Section::Tolerances, Control::EditField,
              "Primal absolute feasibility tolerance in phase 1."),
    doubleRow("xtolx2", {1e-9, 0.001}, 1e-5, Section::Tolerances, Control::EditField,
              "Primal absolute feasibility tolerance in phase 2."),
    doubleRow("xtolzr", {1e-13, 1e-9}, 1e-12, Section::Tolerances, Control::EditField,
              "A floating point number will be set to 0 if it is less than xtolzr."),
    longRow("xusepl", {0, 1}, 0, Section::Ip, Control::CheckBox,
            "Use a pool for all violated cuts. Needs significant amount of additional memory.",
            {{1, "Derive a cut pool."}, {0, ""}}),
    longRow("xwrmps", {0, 1}, 0, Section::None, Control::None,
            "Determines whether an MPS-file is written from the internal model representation before "
            "LP-preprocessing."),
    longRow("xxndxm", {1, longMaximum}, 3, Section::Lp, Control::EditField,
            "Full Devex will be used at slow convergence if xautom = 1 and xn/xm < xxndxm and if fill of last "
            "factorization > xminfi."),
};

inline constexpr std::size_t optionTotal = [] {
    std::size_t total = 0;
    for (const RowSource& source : sources) total += source.optionCount;
    return total;
}();

inline constexpr std::array<ParameterOption, optionTotal> options = [] {
    std::array<ParameterOption, optionTotal> all{};
    auto next = all.begin();
    for (const RowSource& source : sources) next = std::copy_n(source.options.begin(), source.optionCount, next);
    return all;
}();

inline constexpr std::array<ParameterRow, parameterCount> rows = [] {
    std::array<ParameterRow, parameterCount> all{};
    std::size_t firstOption = 0;
    for (std::size_t index = 0; index < all.size(); ++index) {
        all[index] = sources[index].row;
        all[index].options = std::span<const ParameterOption>(options).subspan(firstOption, sources[index].optionCount);
        firstOption += sources[index].optionCount;
    }
    return all;
}();

inline constexpr std::array results{
    ResultSlot{"xnodes", ParameterType::Long},   ResultSlot{"xipfun", ParameterType::Double},
    ResultSlot{"xcmgap", ParameterType::Double}, ResultSlot{"xctime", ParameterType::Double},
    ResultSlot{"xiptim", ParameterType::Double}, ResultSlot{"xiter", ParameterType::Long},
    ResultSlot{"xlpfun", ParameterType::Double}, ResultSlot{"xlptim", ParameterType::Double},
    ResultSlot{"xzbest", ParameterType::Double}, ResultSlot{"xzlbnd", ParameterType::Double},
    ResultSlot{"xzubnd", ParameterType::Double}, ResultSlot{"xnints", ParameterType::Long},
    ResultSlot{"xnif", ParameterType::Long},     ResultSlot{"xsipti", ParameterType::Double},
};

}  // namespace tarq::parameterdata
