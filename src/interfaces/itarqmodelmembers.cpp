// The members of ITARQModel in published order.
#include "tarq/frame/memberbinding.h"
#include "tarq/interfaces/enumerationtables.h"
#include "tarq/interfaces/itarqmodel.h"
#include "tarq/interfaces/itarqres.h"
#include "tarq/interfaces/itarqvar.h"

namespace tarq {
namespace {

constexpr MemberFlags hidden{.hidden = true};
constexpr MemberFlags blocking{.blocking = true};
constexpr MemberFlags hiddenBlocking{.hidden = true, .blocking = true};

std::vector<MemberInfo> members() {
    return {
        method<&ITARQModel::Test>("Test", "Does nothing."),
        method<&ITARQModel::AddCol>(
            "AddCol",
            "Adds a column behind the last one. Bounds are clamped to infinity; a Binary column has "
            "bounds 0 and 1.",
            "LB", "UB", "Type", optional("Cost"), optional("Name")),
        method<&ITARQModel::AddVar>("AddVar",
                                    "Adds a column with the data of a column object, which may stand for a column of "
                                    "this or another model, and "
                                    "attaches the object to the new column.",
                                    "TARQVar"),
        method<&ITARQModel::AddNZ>("AddNZ", "Add a nonzero to an exististing nonzero or stores a new nonzero.", "Row",
                                   "Col", "newVal"),
        method<&ITARQModel::AddRow>("AddRow", "Adds a row behind the last one, with bounds clamped to infinity.", "LB",
                                    "UB", optional("Name")),
        method<&ITARQModel::AddRes>(
            "AddRes",
            "Adds a row with the bounds and the name of a row object, which may stand for a row of this or another "
            "model, and attaches the object to the new row.",
            "TARQRes"),
        method<&ITARQModel::AttachVar>("AttachVar", "Makes a column object stand for a column.", "TARQVar", "Index"),
        method<&ITARQModel::AttachRes>("AttachRes", "Makes a row object stand for a row.", "TARQRes", "Index"),
        method<&ITARQModel::AutoRenameVariables>(
            "AutoRenameVariables", "Renames all columns to C1, C2 and so on, and all rows to R1, R2 and so on."),
        method<&ITARQModel::DelModel>("DelModel",
                                      "Clear the model, but maintains TARQ parameters and general properties."),
        method<&ITARQModel::DelCol>("DelCol", "Deletes a column and its coefficients. A column of a family is refused.",
                                    "Col"),
        method<&ITARQModel::DelRow>("DelRow", "Deletes a row and its coefficients. A row of a family is refused.",
                                    "Row"),
        method<&ITARQModel::DelNZ>("DelNZ", "Removes a coefficient; 0x00042007 when there is none.", "Col", "Row"),
        flagged(blocking,
                method<&ITARQModel::ExecuteAMPLModel>("ExecuteAMPLModel", "Hands a whole run to AMPL.", "MODFileName")),
        method<&ITARQModel::GenFileNames>(
            "GenFileNames", "Generate filenames with path and suffix for TARQ solutionfiles, statisticfiles etc..",
            "FileName"),
        method<&ITARQModel::GetParameterInfo>(
            "GetParameterInfo",
            "Describes a parameter, numbered from 1. For a text row Min, Max and NumberOfOptions stay "
            "as the caller passed them.",
            "ParameterID", "Type", "Name", "Min", "Max", "Default", "Value", "StingLen", "NumberOfOptions",
            "bsDescription", "lpCategory", "lpControl"),
        method<&ITARQModel::GetParameterOption>("GetParameterOption",
                                                "A named value of a parameter; both numbers count from 1.",
                                                "lParameterID", "lOptionID", "lpOptionValue", "bsOptionName"),
        flagged(blocking, method<&ITARQModel::KillThread>("KillThread",
                                                          "Kills running thread. Dangerous function, avoid usage.")),
        stoppedBy("StopOptimizeAsync",
                  flagged(blocking, method<&ITARQModel::Optimize>(
                                        "Optimize",
                                        "Runs the engine on the calling thread. 0x00042001: a resource limit ended it, "
                                        "0x00042002: it stopped at a break; the result so far is in the model then."))),
        flagged(blocking, method<&ITARQModel::OptimizeAsync>("OptimizeAsync", "Start LP and IP run as a thread.")),
        method<&ITARQModel::AddObjSum>("AddObjSum",
                                       "Sets the costs of the columns that a list of coefficients and columns names.",
                                       "CoeffsAndCols"),
        flagged(blocking, method<&ITARQModel::ReadAMPLModel>("ReadAMPLModel",
                                                             "Reads an AMPL model through the external translator.",
                                                             "MODFileName", "DATFileNames")),
        flagged(blocking,
                method<&ITARQModel::ReadMathProgModel>("ReadMathProgModel", "Read Gnu MathProg model and data.",
                                                       "MODFileName", optional("DATFileName"))),
        flagged(blocking, method<&ITARQModel::ReadModel>(
                              "ReadModel",
                              "Reads a model file. Once the file is open the old model is gone; a parse failure leaves "
                              "what was read so far.",
                              "FileName", "eFileFormat")),
        flagged(blocking, method<&ITARQModel::ReadMPLModel>("ReadMPLModel", "Reads an MPL model.", "FileName")),
        flagged(blocking, method<&ITARQModel::ReadProfile>("ReadProfile", "Reads parameter values from a profile file.",
                                                           "ProfileName")),
        method<&ITARQModel::ResetParameters>("ResetParameters",
                                             "Sets every parameter to its default and every result to 0."),
        method<&ITARQModel::SetNZStair>(
            "SetNZStair", "Sets the coefficient of the first row and column, the second row and column, and so on.",
            "RowIndices", "ColIndices", "Nonzeros"),
        flagged(hidden,
                method<&ITARQModel::SetRequiresSaveProperties>(
                    "SetRequiresSaveProperties", "For the parameter page: whether parameters changed.", "bSave")),
        flagged(blocking,
                method<&ITARQModel::ShowPropertyPage>(
                    "ShowPropertyPage",
                    "Shows all parameters in a window, to be read and changed; gives 1 if an apply took place, else 0.",
                    "pbDirty")),
        method<&ITARQModel::StopOptimizeAsync>("StopOptimizeAsync", "Request stop of background optimization."),
        flagged(blocking, method<&ITARQModel::WriteDebugModel>(
                              "WriteDebugModel", "Writes a readable listing of the model or of a cutout.", "FileName",
                              optional("StartRow"), optional("EndRow"), optional("StartCol"), optional("EndCol"))),
        flagged(blocking,
                method<&ITARQModel::WriteModel>("WriteModel", "Writes a model file.", "FileName", "eFileFormat")),
        flagged(blocking, method<&ITARQModel::WriteProfile>(
                              "WriteProfile", "Writes all parameter values to a profile file.", "ProfileName")),
        get<&ITARQModel::get_AMPLOutputBuffer>("AMPLOutputBuffer", "Output of the last run of the AMPL translator."),
        get<&ITARQModel::get_AMPLOutputBufferMaxSize>("AMPLOutputBufferMaxSize", "Limit of AMPLOutputBuffer in bytes."),
        put<&ITARQModel::put_AMPLOutputBufferMaxSize>("AMPLOutputBufferMaxSize", "At least 1024."),
        returning<ITARQVar>(get<&ITARQModel::get_Var>("Var", "A new column object attached to the column.", "Index")),
        put<&ITARQModel::put_Var>("Var", "Copies a column object's data into the column.", "Index"),
        get<&ITARQModel::get_ColCost>("ColCost", "Objective coefficient.", "Col"),
        put<&ITARQModel::put_ColCost>("ColCost", "Stored as it stands, without clamping.", "Col"),
        get<&ITARQModel::get_ColIndex>("ColIndex", "Number of the column, from 1.", "Col"),
        get<&ITARQModel::get_ColIPSol>("ColIPSol", "Value in the integer solution; 0x00042004 when there is none.",
                                       "Col"),
        get<&ITARQModel::get_ColLB>("ColLB", "Lower bound.", "Col"),
        put<&ITARQModel::put_ColLB>("ColLB", "Refused above the upper bound; clamped to infinity.", "Col"),
        get<&ITARQModel::get_ColLPSol>("ColLPSol", "Value in the LP solution; 0x00042003 when there is none.", "Col"),
        get<&ITARQModel::get_ColName>("ColName", "Name of the column with this number.", "Index"),
        put<&ITARQModel::put_ColName>(
            "ColName", "Renames a column. A name that is taken leaves the column without a name.", "Index"),
        get<&ITARQModel::get_ColRedCost>("ColRedCost", "Reduced cost; 0x00042003 when there is none.", "Col"),
        get<&ITARQModel::get_ColStatus>("ColStatus", "State in the basis; 0x00042003 when there is none.", "Col"),
        get<&ITARQModel::get_ColType>("ColType", "Type of the column.", "Col"),
        put<&ITARQModel::put_ColType>("ColType", "Binary sets the bounds to 0 and 1.", "Col"),
        get<&ITARQModel::get_ColUB>("ColUB", "Upper bound.", "Col"),
        put<&ITARQModel::put_ColUB>("ColUB", "Refused below the lower bound; clamped to infinity.", "Col"),
        get<&ITARQModel::get_INF>("INF", "Value for infinity."),
        get<&ITARQModel::get_IPObjFunctBestPossible>("IPObjFunctBestPossible",
                                                     "Best possible IP object function value."),
        get<&ITARQModel::get_IPObjFunctValue>("IPObjFunctValue", "Value of IP objective function after optimization."),
        get<&ITARQModel::get_IsIPModel>("IsIPModel", "True if model contains integer or binary variables."),
        get<&ITARQModel::get_IsBusy>("IsBusy", "True if currently an optimization thread is running."),
        get<&ITARQModel::get_IsMPLAvailable>("IsMPLAvailable", "Check if Optimax.DLL is registered and MPL available."),
        get<&ITARQModel::get_LastSolverMessage>("LastSolverMessage", "Description of last TARQ.DLL error."),
        get<&ITARQModel::get_LocationOfMathProgDLL>("LocationOfMathProgDLL",
                                                    "The MathProg library, a path or a plain name."),
        put<&ITARQModel::put_LocationOfMathProgDLL>("LocationOfMathProgDLL", "At most 255 bytes."),
        get<&ITARQModel::get_LocationOfAMPLEXE>("LocationOfAMPLEXE", "The AMPL translator, a path or a plain name."),
        put<&ITARQModel::put_LocationOfAMPLEXE>("LocationOfAMPLEXE", "At most 255 bytes."),
        get<&ITARQModel::get_LocationOfTARQDLL>("LocationOfTARQDLL", "The engine library, a path or a plain name."),
        put<&ITARQModel::put_LocationOfTARQDLL>("LocationOfTARQDLL",
                                                "At most 255 bytes. Releases an engine that is bound."),
        get<&ITARQModel::get_LocationOfTARQAMPLEXE>("LocationOfTARQAMPLEXE",
                                                    "The engine's AMPL driver, a path or a plain name."),
        put<&ITARQModel::put_LocationOfTARQAMPLEXE>("LocationOfTARQAMPLEXE", "At most 255 bytes."),
        get<&ITARQModel::get_LPObjFunctValue>("LPObjFunctValue", "Value of LP objective function after optimization."),
        get<&ITARQModel::get_LPSumInfeas>("LPSumInfeas", "Sum of infeasibilities until now in LP run."),
        get<&ITARQModel::get_ModelName>("ModelName", "Name of the model, as model files carry it."),
        put<&ITARQModel::put_ModelName>("ModelName", "At most 32 characters."),
        get<&ITARQModel::get_TARQDLLVersion>("TARQDLLVersion",
                                             "Version of the engine; \"unknown\" when there is none to ask."),
        get<&ITARQModel::get_MPLErrorMessage>("MPLErrorMessage", "Get last MPL error description."),
        get<&ITARQModel::get_MPLErrorLine>("MPLErrorLine", "Get line number of last MPL error."),
        get<&ITARQModel::get_MPLWorkingDirectory>("MPLWorkingDirectory", "Directory where MPL reads and writes files."),
        put<&ITARQModel::put_MPLWorkingDirectory>("MPLWorkingDirectory", "At most 255 bytes."),
        get<&ITARQModel::get_Name>("Name", "A name for the client's own use."),
        put<&ITARQModel::put_Name>("Name", "Of any length."),
        get<&ITARQModel::get_NumberOfCols>("NumberOfCols", "Number of columns."),
        get<&ITARQModel::get_NumberOfIntSolutions>("NumberOfIntSolutions",
                                                   "Number of integer solutions found until now."),
        get<&ITARQModel::get_NumberOfLPInfeas>("NumberOfLPInfeas", "Number of infeasibilities until now in LP run."),
        get<&ITARQModel::get_NumberOfLPIterations>("NumberOfLPIterations",
                                                   "Number of iterations done until now in LP run."),
        get<&ITARQModel::get_NumberOfNodesProcessed>("NumberOfNodesProcessed",
                                                     "Number of nodes processed in until now in IP run."),
        get<&ITARQModel::get_NumberOfNZ>("NumberOfNZ", "Number of coefficients that are not 0."),
        get<&ITARQModel::get_NumberOfParameters>("NumberOfParameters", "Number of parameters, 121."),
        get<&ITARQModel::get_NumberOfRows>("NumberOfRows", "Number of rows."),
        get<&ITARQModel::get_NZ>("NZ", "A coefficient, 0 when there is none.", "Row", "Col"),
        put<&ITARQModel::put_NZ>("NZ", "Replaces a coefficient; 0 removes it.", "Row", "Col"),
        get<&ITARQModel::get_NZs>("NZs", "A block of coefficients.", "RowIndices", "ColIndices"),
        put<&ITARQModel::put_NZs>("NZs", "Replaces a block of coefficients.", "RowIndices", "ColIndices"),
        returning<ITARQModel>(
            get<&ITARQModel::get_ObjectNET>("ObjectNET", "Return pointer to own IDispatch for .NET clients.")),
        get<&ITARQModel::get_Parameter>(
            "Parameter", "A parameter or a result of the engine, by name without regard to case.", "ParameterName"),
        put<&ITARQModel::put_Parameter>(
            "Parameter", "Checks and stores a parameter; it reaches the engine at the next run.", "ParameterName"),
        returning<ITARQRes>(get<&ITARQModel::get_Res>("Res", "A new row object attached to the row.", "Index")),
        put<&ITARQModel::put_Res>("Res", "Copies a row object's data into the row.", "Index"),
        get<&ITARQModel::get_RowDual>("RowDual", "Shadow price; 0x00042003 when there is none.", "Row"),
        get<&ITARQModel::get_RowIndex>("RowIndex", "Number of the row, from 1.", "Row"),
        get<&ITARQModel::get_RowIPSol>("RowIPSol", "Activity in the integer solution; 0x00042004 when there is none.",
                                       "Row"),
        get<&ITARQModel::get_RowLHS>("RowLHS", "Lower bound.", "Row"),
        put<&ITARQModel::put_RowLHS>("RowLHS", "Refused above the upper bound; clamped to infinity.", "Row"),
        get<&ITARQModel::get_RowLPSol>("RowLPSol", "Activity in the LP solution; 0x00042003 when there is none.",
                                       "Row"),
        get<&ITARQModel::get_RowName>("RowName", "Name of the row with this number.", "Index"),
        put<&ITARQModel::put_RowName>("RowName", "Renames a row. A name that is taken leaves the row without a name.",
                                      "Index"),
        get<&ITARQModel::get_RowStatus>("RowStatus", "State in the basis; 0x00042003 when there is none.", "Row"),
        get<&ITARQModel::get_RowRHS>("RowRHS", "Upper bound.", "Row"),
        put<&ITARQModel::put_RowRHS>("RowRHS", "Refused below the lower bound; clamped to infinity.", "Row"),
        get<&ITARQModel::get_SolutionStatus>("SolutionStatus", "Status of the solution (feasible, optimal etc.)"),
        get<&ITARQModel::get_SolverStatus>("SolverStatus", "Status of solverengine (errors, stops, success etc.)."),
        flagged(hidden, method<&ITARQModel::_AddVarSetElement>(
                            "_AddVarSetElement",
                            "For families: adds one of a family's columns, without a name where the pointer is null.",
                            "bsName", "family")),
        flagged(hidden, method<&ITARQModel::_AddResSetElement>(
                            "_AddResSetElement",
                            "For families: adds one of a family's rows, without a name where the pointer is null.",
                            "bsName", "family")),
        flagged(hidden, get<&ITARQModel::get_VarSetStartIndex>(
                            "VarSetStartIndex", "For families: number of the family's first column.", "family")),
        flagged(hidden,
                get<&ITARQModel::get_ResSetStartIndex>(
                    "ResSetStartIndex",
                    "For families: number of the family's first row; status 1 when it has none here.", "family")),
        flagged(hidden, method<&ITARQModel::_ChangeCol>(
                            "_ChangeCol",
                            "For column objects: changes the given fields of the column at a position from 0; a null "
                            "pointer leaves a field alone.",
                            "lIndex0", "pdLB", "pdUB", "peType", "pdCost", "pbsName")),
        flagged(hidden, method<&ITARQModel::_ChangeRow>("_ChangeRow", "For row objects: the same for a row.", "lIndex0",
                                                        "pdLB", "pdUB", "pbsName")),
        flagged(hidden, method<&ITARQModel::_ClearTARQResSet>("_ClearTARQResSet",
                                                              "For families: removes the family's rows.", "family")),
        flagged(hidden, method<&ITARQModel::_ClearTARQVarSet>("_ClearTARQVarSet",
                                                              "For families: removes the family's columns.", "family")),
        flagged(hiddenBlocking, method<&ITARQModel::ReadAMPLStub>(
                                    "ReadAMPLStub", "Reads a model from AMPL's stub files.", "StubFileName")),
        flagged(hiddenBlocking, method<&ITARQModel::_WriteAMPLSolStub>(
                                    "_WriteAMPLSolStub", "Writes the solution for a stub.", "StubFileName")),
    };
}

}  // namespace

const InterfaceTable& ITARQModel::memberTable() {
    static const InterfaceTable table("ITARQModel", id, "An optimization model, its parameters and its runs.",
                                      members());
    return table;
}

}  // namespace tarq
