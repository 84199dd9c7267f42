// ITARQModel: the object interface of a model.
//
// Every operation returns a status. 0 is success; a failure leaves its description with the calling thread
// (ObjectError); a success with a message, such as noLpSolution "no LP solution", leaves the output as it was. A null
// output pointer is nullPointer. Columns and rows are addressed by a Variant: a text is a name, anything else a number
// from 1. Texts are UTF-8. Optional arguments default to the missing value. The order of the functions is the published
// one and is part of the binary interface. Operations come from one thread at a time; during a run another thread may
// read the counters, objective values, statuses and results, and may call StopOptimizeAsync.
#pragma once

#include <cstdint>
#include <string>

#include "tarq/frame/dispatch.h"
#include "tarq/frame/status.h"
#include "tarq/frame/valuelist.h"
#include "tarq/frame/variant.h"
#include "tarq/interfaces/enumerations.h"

namespace tarq {

// Two members are published with a leading underscore and a capital.
// NOLINTBEGIN(bugprone-reserved-identifier)
class ITARQModel : public IDispatch {
public:
    static constexpr Guid id{0xFF331FE1, 0x5C77, 0x4FFD, {0x92, 0x02, 0x55, 0x95, 0x21, 0xD6, 0xEB, 0xEA}};

    /// The members as data.
    TARQ_API static const InterfaceTable& memberTable();

    /// Does nothing.
    virtual Status Test() = 0;

    /// Adds a column behind the last one. Bounds are clamped to infinity; a Binary column has bounds 0 and 1.
    virtual Status AddCol(double LB, double UB, TARQColType Type, const Variant& Cost = Variant::missing(),
                          const Variant& Name = Variant::missing()) = 0;

    /// Adds a column from a detached column object and attaches the object to it.
    virtual Status AddVar(IUnknown* TARQVar) = 0;

    /// Adds a value to a coefficient. A sum of 0 removes it.
    virtual Status AddNZ(const Variant& Row, const Variant& Col, double newVal) = 0;

    /// Adds a row behind the last one, with bounds clamped to infinity.
    virtual Status AddRow(double LB, double UB, const Variant& Name = Variant::missing()) = 0;

    /// Adds a row from a detached row object and attaches the object to it.
    virtual Status AddRes(IUnknown* TARQRes) = 0;

    /// Makes a column object stand for a column.
    virtual Status AttachVar(IUnknown* TARQVar, const Variant& Index) = 0;

    /// Makes a row object stand for a row.
    virtual Status AttachRes(IUnknown* TARQRes, const Variant& Index) = 0;

    /// Renames all columns to C1, C2 and so on, and all rows to R1, R2 and so on.
    virtual Status AutoRenameVariables() = 0;

    /// Clears the model, but keeps the parameters (save the five MPS vector names) and the general properties.
    virtual Status DelModel() = 0;

    /// Deletes a column and its coefficients. A column of a family is refused.
    virtual Status DelCol(const Variant& Col) = 0;

    /// Deletes a row and its coefficients. A row of a family is refused.
    virtual Status DelRow(const Variant& Row) = 0;

    /// Removes a coefficient; noSuchNonzero when there is none.
    virtual Status DelNZ(const Variant& Col, const Variant& Row) = 0;

    /// Hands a whole run to AMPL.
    virtual Status ExecuteAMPLModel(const std::string& MODFileName) = 0;

    /// Fills the file name parameters xfnlps, xfnips, xfnsta, xfnlog, xfnmsg, xfnmps and xfnpro from one base name.
    virtual Status GenFileNames(const std::string& FileName) = 0;

    /// Describes a parameter, numbered from 1. For a text row Min, Max and NumberOfOptions stay as the caller passed
    /// them.
    virtual Status GetParameterInfo(std::int32_t ParameterID, std::int32_t* Type, std::string* Name, Variant* Min,
                                    Variant* Max, Variant* Default, Variant* Value, std::int32_t* StingLen,
                                    std::int32_t* NumberOfOptions, std::string* bsDescription, std::int32_t* lpCategory,
                                    std::int32_t* lpControl) = 0;

    /// A named value of a parameter; both numbers count from 1.
    virtual Status GetParameterOption(std::int32_t lParameterID, std::int32_t lOptionID, std::int32_t* lpOptionValue,
                                      std::string* bsOptionName) = 0;

    /// Parks the thread of a background run for good, with its memory and all that it holds locked; the run never
    /// reports, and the model is free. Takes up to three seconds. Does nothing without a run. Dangerous.
    virtual Status KillThread() = 0;

    /// Runs the engine on the calling thread. resourceLimit: a resource limit ended it, stoppedAtBreak: it stopped at a
    /// break; the result so far is in the model then.
    virtual Status Optimize() = 0;

    /// Runs the engine on a thread of its own.
    virtual Status OptimizeAsync() = 0;

    /// Sets the cost of each column that the list names to its coefficient: coefficients and columns in turn, a number
    /// or several and then a name, several, or an object that has some. The coefficient 1 may be left out. The other
    /// columns keep their costs. A failure keeps the costs set before it.
    virtual Status AddObjSum(const ValueList& CoeffsAndCols) = 0;

    /// Reads an AMPL model through the external translator.
    virtual Status ReadAMPLModel(const std::string& MODFileName, const ValueList& DATFileNames) = 0;

    /// Reads a GNU MathProg model and its data.
    virtual Status ReadMathProgModel(const std::string& MODFileName,
                                     const Variant& DATFileName = Variant::missing()) = 0;

    /// Reads a model file. Once the file is open the old model is gone; a parse failure leaves what was read so far.
    virtual Status ReadModel(const std::string& FileName, TARQFileFormatType eFileFormat) = 0;

    /// Reads an MPL model.
    virtual Status ReadMPLModel(const std::string& FileName) = 0;

    /// Reads parameter values from a profile file.
    virtual Status ReadProfile(const std::string& ProfileName) = 0;

    /// Sets every parameter to its default and every result to 0.
    virtual Status ResetParameters() = 0;

    /// Replaces the coefficients of the first row and column, the second row and column, and so on to the end of the
    /// shorter list, from one value for all or a list of values.
    virtual Status SetNZStair(const Variant& RowIndices, const Variant& ColIndices, const Variant& Nonzeros) = 0;

    /// For the parameter page: whether parameters changed.
    virtual Status SetRequiresSaveProperties(std::int32_t bSave) = 0;

    /// Shows all parameters in a window, to be read and changed, and returns when that is closed; *pbDirty is then 1 if
    /// an apply took place, else 0. propertyPage when it can't be shown, as without a display or while another is open.
    virtual Status ShowPropertyPage(std::int32_t* pbDirty) = 0;

    /// Asks a run to stop at the next opportunity. Callable from any thread, and from a signal handler.
    virtual Status StopOptimizeAsync() = 0;

    /// Writes a readable listing of the model or of a cutout.
    virtual Status WriteDebugModel(const std::string& FileName, const Variant& StartRow = Variant::missing(),
                                   const Variant& EndRow = Variant::missing(),
                                   const Variant& StartCol = Variant::missing(),
                                   const Variant& EndCol = Variant::missing()) = 0;

    /// Writes a model file.
    virtual Status WriteModel(const std::string& FileName, TARQFileFormatType eFileFormat) = 0;

    /// Writes all parameter values to a profile file.
    virtual Status WriteProfile(const std::string& ProfileName) = 0;

    /// Output of the last run of the AMPL translator.
    virtual Status get_AMPLOutputBuffer(std::string* value) = 0;

    /// Limit of AMPLOutputBuffer in bytes.
    virtual Status get_AMPLOutputBufferMaxSize(std::int32_t* value) = 0;

    /// At least 1024.
    virtual Status put_AMPLOutputBufferMaxSize(std::int32_t value) = 0;

    /// A new column object attached to the column.
    virtual Status get_Var(const Variant& Index, Ref<IUnknown>* value) = 0;

    /// Copies a column object's data into the column.
    virtual Status put_Var(const Variant& Index, IUnknown* value) = 0;

    /// Objective coefficient.
    virtual Status get_ColCost(const Variant& Col, double* value) = 0;

    /// Stored as it stands, without clamping.
    virtual Status put_ColCost(const Variant& Col, double value) = 0;

    /// Number of the column, from 1.
    virtual Status get_ColIndex(const Variant& Col, std::int32_t* value) = 0;

    /// Value in the integer solution; noIpSolution when there is none.
    virtual Status get_ColIPSol(const Variant& Col, double* value) = 0;

    /// Lower bound.
    virtual Status get_ColLB(const Variant& Col, double* value) = 0;

    /// Refused above the upper bound; clamped to infinity.
    virtual Status put_ColLB(const Variant& Col, double value) = 0;

    /// Value in the LP solution; noLpSolution when there is none.
    virtual Status get_ColLPSol(const Variant& Col, double* value) = 0;

    /// Name of the column with this number.
    virtual Status get_ColName(std::int32_t Index, std::string* value) = 0;

    /// Renames a column. A name that is taken leaves the column without a name.
    virtual Status put_ColName(std::int32_t Index, const std::string& value) = 0;

    /// Reduced cost; noLpSolution when there is none.
    virtual Status get_ColRedCost(const Variant& Col, double* value) = 0;

    /// State in the basis; noLpSolution when there is none.
    virtual Status get_ColStatus(const Variant& Col, TARQColRowStatusType* value) = 0;

    /// Type of the column.
    virtual Status get_ColType(const Variant& Col, TARQColType* value) = 0;

    /// Binary sets the bounds to 0 and 1.
    virtual Status put_ColType(const Variant& Col, TARQColType value) = 0;

    /// Upper bound.
    virtual Status get_ColUB(const Variant& Col, double* value) = 0;

    /// Refused below the lower bound; clamped to infinity.
    virtual Status put_ColUB(const Variant& Col, double value) = 0;

    /// The model's value for infinity.
    virtual Status get_INF(double* value) = 0;

    /// Best possible objective value of an integer solution.
    virtual Status get_IPObjFunctBestPossible(double* value) = 0;

    /// Objective value of the best integer solution.
    virtual Status get_IPObjFunctValue(double* value) = 0;

    /// 1 if any column is integer or binary, else 0.
    virtual Status get_IsIPModel(std::int32_t* value) = 0;

    /// 1 while a background run is active, else 0.
    virtual Status get_IsBusy(std::int32_t* value) = 0;

    /// 1 if the MPL server can be created, else 0.
    virtual Status get_IsMPLAvailable(std::int32_t* value) = 0;

    /// Description of the engine's last error.
    virtual Status get_LastSolverMessage(std::string* value) = 0;

    /// The MathProg library, a path or a plain name.
    virtual Status get_LocationOfMathProgDLL(std::string* value) = 0;

    /// At most 255 bytes.
    virtual Status put_LocationOfMathProgDLL(const std::string& value) = 0;

    /// The AMPL translator, a path or a plain name.
    virtual Status get_LocationOfAMPLEXE(std::string* value) = 0;

    /// At most 255 bytes.
    virtual Status put_LocationOfAMPLEXE(const std::string& value) = 0;

    /// The engine library, a path or a plain name.
    virtual Status get_LocationOfTARQDLL(std::string* value) = 0;

    /// At most 255 bytes. Releases an engine that is bound.
    virtual Status put_LocationOfTARQDLL(const std::string& value) = 0;

    /// The engine's AMPL driver, a path or a plain name.
    virtual Status get_LocationOfTARQAMPLEXE(std::string* value) = 0;

    /// At most 255 bytes.
    virtual Status put_LocationOfTARQAMPLEXE(const std::string& value) = 0;

    /// Objective value of the LP solution.
    virtual Status get_LPObjFunctValue(double* value) = 0;

    /// Sum of infeasibilities so far in the LP.
    virtual Status get_LPSumInfeas(double* value) = 0;

    /// Name of the model, as model files carry it.
    virtual Status get_ModelName(std::string* value) = 0;

    /// At most 32 characters.
    virtual Status put_ModelName(const std::string& value) = 0;

    /// Version of the engine; "unknown" when there is none to ask.
    virtual Status get_TARQDLLVersion(std::string* value) = 0;

    /// Description of the last MPL error.
    virtual Status get_MPLErrorMessage(std::string* value) = 0;

    /// Line number of the last MPL error.
    virtual Status get_MPLErrorLine(std::int32_t* value) = 0;

    /// Directory where MPL reads and writes files.
    virtual Status get_MPLWorkingDirectory(std::string* value) = 0;

    /// At most 255 bytes.
    virtual Status put_MPLWorkingDirectory(const std::string& value) = 0;

    /// A name for the client's own use.
    virtual Status get_Name(std::string* value) = 0;

    /// Of any length.
    virtual Status put_Name(const std::string& value) = 0;

    /// Number of columns.
    virtual Status get_NumberOfCols(std::int32_t* value) = 0;

    /// Number of integer solutions found so far.
    virtual Status get_NumberOfIntSolutions(std::int32_t* value) = 0;

    /// Number of infeasibilities so far in the LP.
    virtual Status get_NumberOfLPInfeas(std::int32_t* value) = 0;

    /// Number of iterations so far in the LP.
    virtual Status get_NumberOfLPIterations(std::int32_t* value) = 0;

    /// Number of nodes processed so far in branch and bound.
    virtual Status get_NumberOfNodesProcessed(std::int32_t* value) = 0;

    /// Number of coefficients that are not 0.
    virtual Status get_NumberOfNZ(std::int32_t* value) = 0;

    /// Number of parameters, 121.
    virtual Status get_NumberOfParameters(std::int32_t* value) = 0;

    /// Number of rows.
    virtual Status get_NumberOfRows(std::int32_t* value) = 0;

    /// A coefficient, 0 when there is none.
    virtual Status get_NZ(const Variant& Row, const Variant& Col, double* value) = 0;

    /// Replaces a coefficient; 0 removes it.
    virtual Status put_NZ(const Variant& Row, const Variant& Col, double value) = 0;

    /// A block of coefficients. Each index argument is a name or number, an array of one dimension, or an object that
    /// has values. One place gives a Double, more an array with a row for each row and lower bounds 1.
    virtual Status get_NZs(const Variant& RowIndices, const Variant& ColIndices, Variant* value) = 0;

    /// Replaces a block of coefficients from one value for all, a list of values row by row, or an array of as many
    /// rows and columns or more. A failure changes nothing.
    virtual Status put_NZs(const Variant& RowIndices, const Variant& ColIndices, const Variant& value) = 0;

    /// The object itself.
    virtual Status get_ObjectNET(Ref<IUnknown>* value) = 0;

    /// A parameter or a result of the engine, by name without regard to case.
    virtual Status get_Parameter(const std::string& ParameterName, Variant* value) = 0;

    /// Checks and stores a parameter; it reaches the engine at the next run.
    virtual Status put_Parameter(const std::string& ParameterName, const Variant& value) = 0;

    /// A new row object attached to the row.
    virtual Status get_Res(const Variant& Index, Ref<IUnknown>* value) = 0;

    /// Copies a row object's data into the row.
    virtual Status put_Res(const Variant& Index, IUnknown* value) = 0;

    /// Shadow price; noLpSolution when there is none.
    virtual Status get_RowDual(const Variant& Row, double* value) = 0;

    /// Number of the row, from 1.
    virtual Status get_RowIndex(const Variant& Row, std::int32_t* value) = 0;

    /// Activity in the integer solution; noIpSolution when there is none.
    virtual Status get_RowIPSol(const Variant& Row, double* value) = 0;

    /// Lower bound.
    virtual Status get_RowLHS(const Variant& Row, double* value) = 0;

    /// Refused above the upper bound; clamped to infinity.
    virtual Status put_RowLHS(const Variant& Row, double value) = 0;

    /// Activity in the LP solution; noLpSolution when there is none.
    virtual Status get_RowLPSol(const Variant& Row, double* value) = 0;

    /// Name of the row with this number.
    virtual Status get_RowName(std::int32_t Index, std::string* value) = 0;

    /// Renames a row. A name that is taken leaves the row without a name.
    virtual Status put_RowName(std::int32_t Index, const std::string& value) = 0;

    /// State in the basis; noLpSolution when there is none.
    virtual Status get_RowStatus(const Variant& Row, TARQColRowStatusType* value) = 0;

    /// Upper bound.
    virtual Status get_RowRHS(const Variant& Row, double* value) = 0;

    /// Refused below the lower bound; clamped to infinity.
    virtual Status put_RowRHS(const Variant& Row, double value) = 0;

    /// Status of the solution (feasible, optimal etc.).
    virtual Status get_SolutionStatus(TARQSolutionStatusTyp* value) = 0;

    /// Status of the engine (errors, stops, success etc.).
    virtual Status get_SolverStatus(TARQSolverStatusTyp* value) = 0;

    /// For families: adds one of a family's columns, without a name where the pointer is null.
    virtual Status _AddVarSetElement(const std::string* bsName, IUnknown* family) = 0;

    /// For families: adds one of a family's rows, without a name where the pointer is null.
    virtual Status _AddResSetElement(const std::string* bsName, IUnknown* family) = 0;

    /// For families: number of the family's first column.
    virtual Status get_VarSetStartIndex(IUnknown* family, std::int32_t* value) = 0;

    /// For families: number of the family's first row; status 1 when it has none here.
    virtual Status get_ResSetStartIndex(IUnknown* family, std::int32_t* value) = 0;

    /// For column objects: changes the given fields of the column at a position from 0; a null pointer leaves a field
    /// alone.
    virtual Status _ChangeCol(std::int32_t lIndex0, const double* pdLB, const double* pdUB, const TARQColType* peType,
                              const double* pdCost, const std::string* pbsName) = 0;

    /// For row objects: the same for a row.
    virtual Status _ChangeRow(std::int32_t lIndex0, const double* pdLB, const double* pdUB,
                              const std::string* pbsName) = 0;

    /// For families: removes the family's rows.
    virtual Status _ClearTARQResSet(IUnknown* family) = 0;

    /// For families: removes the family's columns.
    virtual Status _ClearTARQVarSet(IUnknown* family) = 0;

    /// Reads a model from AMPL's stub files.
    virtual Status ReadAMPLStub(const std::string& StubFileName) = 0;

    /// Writes the solution for a stub.
    virtual Status _WriteAMPLSolStub(const std::string& StubFileName) = 0;

protected:
    ~ITARQModel() = default;
};
// NOLINTEND(bugprone-reserved-identifier)

}  // namespace tarq
