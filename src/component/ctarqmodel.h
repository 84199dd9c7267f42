// CTARQModel: the object behind ITARQModel.
//
// A facade: it owns the store, the parameters, the engine's binding and the settings of one model, and each member
// calls the room that knows. Its sources are split by topic. Fields are used by the client's thread and, during a run,
// by the thread of the run; what both touch is atomic (see engine/run.h).
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>

#include "component/backgroundrun.h"
#include "engine/enginebinding.h"
#include "engine/run.h"
#include "frame/memberguard.h"
#include "languages/languagetarget.h"
#include "languages/mplimport.h"
#include "model/modelstore.h"
#include "parameters/parametertable.h"
#include "tarq/frame/connectionpoint.h"
#include "tarq/frame/countedobject.h"
#include "tarq/frame/objecterror.h"
#include "tarq/frame/supporterrorinfo.h"
#include "tarq/interfaces/classids.h"
#include "tarq/interfaces/ireadingnotes.h"
#include "tarq/interfaces/itarqmodel.h"
#include "tarq/interfaces/itarqmodelevents.h"

namespace tarq {

/// Only the last reference deletes it.
class CTARQModel final
    : public CountedObject<CTARQModel, ITARQModel, IConnectionPointContainer, ISupportErrorInfo, IReadingNotes>,
      private LanguageTarget {
public:
    CTARQModel() = default;
    Status finalConstruct();

    Status FindConnectionPoint(const Guid& interfaceId, IConnectionPoint** point) override;
    Status InterfaceSupportsErrorInfo(const Guid& interfaceId) override;

    ReadingNotes readingNotes() const override { return readingNotes_; }

    Status Test() override;
    Status AddCol(double LB, double UB, TARQColType Type, const Variant& Cost, const Variant& Name) override;
    Status AddVar(IUnknown* TARQVar) override;
    Status AddNZ(const Variant& Row, const Variant& Col, double newVal) override;
    Status AddRow(double LB, double UB, const Variant& Name) override;
    Status AddRes(IUnknown* TARQRes) override;
    Status AttachVar(IUnknown* TARQVar, const Variant& Index) override;
    Status AttachRes(IUnknown* TARQRes, const Variant& Index) override;
    Status AutoRenameVariables() override;
    Status DelModel() override;
    Status DelCol(const Variant& Col) override;
    Status DelRow(const Variant& Row) override;
    Status DelNZ(const Variant& Col, const Variant& Row) override;
    Status ExecuteAMPLModel(const std::string& MODFileName) override;
    Status GenFileNames(const std::string& FileName) override;
    Status GetParameterInfo(std::int32_t ParameterID, std::int32_t* Type, std::string* Name, Variant* Min, Variant* Max,
                            Variant* Default, Variant* Value, std::int32_t* StingLen, std::int32_t* NumberOfOptions,
                            std::string* bsDescription, std::int32_t* lpCategory, std::int32_t* lpControl) override;
    Status GetParameterOption(std::int32_t lParameterID, std::int32_t lOptionID, std::int32_t* lpOptionValue,
                              std::string* bsOptionName) override;
    Status KillThread() override;
    Status Optimize() override;
    Status OptimizeAsync() override;
    Status AddObjSum(const ValueList& CoeffsAndCols) override;
    Status ReadAMPLModel(const std::string& MODFileName, const ValueList& DATFileNames) override;
    Status ReadMathProgModel(const std::string& MODFileName, const Variant& DATFileName) override;
    Status ReadModel(const std::string& FileName, TARQFileFormatType eFileFormat) override;
    Status ReadMPLModel(const std::string& FileName) override;
    Status ReadProfile(const std::string& ProfileName) override;
    Status ResetParameters() override;
    Status SetNZStair(const Variant& RowIndices, const Variant& ColIndices, const Variant& Nonzeros) override;
    Status SetRequiresSaveProperties(std::int32_t bSave) override;
    Status ShowPropertyPage(std::int32_t* pbDirty) override;
    Status StopOptimizeAsync() override;
    Status WriteDebugModel(const std::string& FileName, const Variant& StartRow, const Variant& EndRow,
                           const Variant& StartCol, const Variant& EndCol) override;
    Status WriteModel(const std::string& FileName, TARQFileFormatType eFileFormat) override;
    Status WriteProfile(const std::string& ProfileName) override;
    Status get_AMPLOutputBuffer(std::string* value) override;
    Status get_AMPLOutputBufferMaxSize(std::int32_t* value) override;
    Status put_AMPLOutputBufferMaxSize(std::int32_t value) override;
    Status get_Var(const Variant& Index, Ref<IUnknown>* value) override;
    Status put_Var(const Variant& Index, IUnknown* value) override;
    Status get_ColCost(const Variant& Col, double* value) override;
    Status put_ColCost(const Variant& Col, double value) override;
    Status get_ColIndex(const Variant& Col, std::int32_t* value) override;
    Status get_ColIPSol(const Variant& Col, double* value) override;
    Status get_ColLB(const Variant& Col, double* value) override;
    Status put_ColLB(const Variant& Col, double value) override;
    Status get_ColLPSol(const Variant& Col, double* value) override;
    Status get_ColName(std::int32_t Index, std::string* value) override;
    Status put_ColName(std::int32_t Index, const std::string& value) override;
    Status get_ColRedCost(const Variant& Col, double* value) override;
    Status get_ColStatus(const Variant& Col, TARQColRowStatusType* value) override;
    Status get_ColType(const Variant& Col, TARQColType* value) override;
    Status put_ColType(const Variant& Col, TARQColType value) override;
    Status get_ColUB(const Variant& Col, double* value) override;
    Status put_ColUB(const Variant& Col, double value) override;
    Status get_INF(double* value) override;
    Status get_IPObjFunctBestPossible(double* value) override;
    Status get_IPObjFunctValue(double* value) override;
    Status get_IsIPModel(std::int32_t* value) override;
    Status get_IsBusy(std::int32_t* value) override;
    Status get_IsMPLAvailable(std::int32_t* value) override;
    Status get_LastSolverMessage(std::string* value) override;
    Status get_LocationOfMathProgDLL(std::string* value) override;
    Status put_LocationOfMathProgDLL(const std::string& value) override;
    Status get_LocationOfAMPLEXE(std::string* value) override;
    Status put_LocationOfAMPLEXE(const std::string& value) override;
    Status get_LocationOfTARQDLL(std::string* value) override;
    Status put_LocationOfTARQDLL(const std::string& value) override;
    Status get_LocationOfTARQAMPLEXE(std::string* value) override;
    Status put_LocationOfTARQAMPLEXE(const std::string& value) override;
    Status get_LPObjFunctValue(double* value) override;
    Status get_LPSumInfeas(double* value) override;
    Status get_ModelName(std::string* value) override;
    Status put_ModelName(const std::string& value) override;
    Status get_TARQDLLVersion(std::string* value) override;
    Status get_MPLErrorMessage(std::string* value) override;
    Status get_MPLErrorLine(std::int32_t* value) override;
    Status get_MPLWorkingDirectory(std::string* value) override;
    Status put_MPLWorkingDirectory(const std::string& value) override;
    Status get_Name(std::string* value) override;
    Status put_Name(const std::string& value) override;
    Status get_NumberOfCols(std::int32_t* value) override;
    Status get_NumberOfIntSolutions(std::int32_t* value) override;
    Status get_NumberOfLPInfeas(std::int32_t* value) override;
    Status get_NumberOfLPIterations(std::int32_t* value) override;
    Status get_NumberOfNodesProcessed(std::int32_t* value) override;
    Status get_NumberOfNZ(std::int32_t* value) override;
    Status get_NumberOfParameters(std::int32_t* value) override;
    Status get_NumberOfRows(std::int32_t* value) override;
    Status get_NZ(const Variant& Row, const Variant& Col, double* value) override;
    Status put_NZ(const Variant& Row, const Variant& Col, double value) override;
    Status get_NZs(const Variant& RowIndices, const Variant& ColIndices, Variant* value) override;
    Status put_NZs(const Variant& RowIndices, const Variant& ColIndices, const Variant& value) override;
    Status get_ObjectNET(Ref<IUnknown>* value) override;
    Status get_Parameter(const std::string& ParameterName, Variant* value) override;
    Status put_Parameter(const std::string& ParameterName, const Variant& value) override;
    Status get_Res(const Variant& Index, Ref<IUnknown>* value) override;
    Status put_Res(const Variant& Index, IUnknown* value) override;
    Status get_RowDual(const Variant& Row, double* value) override;
    Status get_RowIndex(const Variant& Row, std::int32_t* value) override;
    Status get_RowIPSol(const Variant& Row, double* value) override;
    Status get_RowLHS(const Variant& Row, double* value) override;
    Status put_RowLHS(const Variant& Row, double value) override;
    Status get_RowLPSol(const Variant& Row, double* value) override;
    Status get_RowName(std::int32_t Index, std::string* value) override;
    Status put_RowName(std::int32_t Index, const std::string& value) override;
    Status get_RowStatus(const Variant& Row, TARQColRowStatusType* value) override;
    Status get_RowRHS(const Variant& Row, double* value) override;
    Status put_RowRHS(const Variant& Row, double value) override;
    Status get_SolutionStatus(TARQSolutionStatusTyp* value) override;
    Status get_SolverStatus(TARQSolverStatusTyp* value) override;
    Status _AddVarSetElement(const std::string* bsName, IUnknown* family) override;
    Status _AddResSetElement(const std::string* bsName, IUnknown* family) override;
    Status get_VarSetStartIndex(IUnknown* family, std::int32_t* value) override;
    Status get_ResSetStartIndex(IUnknown* family, std::int32_t* value) override;
    Status _ChangeCol(std::int32_t lIndex0, const double* pdLB, const double* pdUB, const TARQColType* peType,
                      const double* pdCost, const std::string* pbsName) override;
    Status _ChangeRow(std::int32_t lIndex0, const double* pdLB, const double* pdUB,
                      const std::string* pbsName) override;
    Status _ClearTARQResSet(IUnknown* family) override;
    Status _ClearTARQVarSet(IUnknown* family) override;
    Status ReadAMPLStub(const std::string& StubFileName) override;
    Status _WriteAMPLSolStub(const std::string& StubFileName) override;

private:
    friend std::default_delete<CTARQModel>;
    ~CTARQModel() = default;

    // The model that the readers of files and languages fill.
    ModelStore& store() override { return store_; }
    void clearModel() override;
    void setModelName(std::string name) override { modelName_ = std::move(name); }
    void setParameter(std::string_view name, std::string_view value) override;
    void setReadingNotes(const ReadingNotes& notes) override { readingNotes_ = notes; }
    [[nodiscard]] std::size_t outputLimit() const override {
        return static_cast<std::size_t>(amplOutputBufferMaxSize_);
    }
    void setOutput(std::string bytes) override;

    // A member's few lines, as in frame/memberguard.h, for an object of this class.
    template <class Operation>
    static Status guarded(Operation&& operation) {
        return tarq::guarded(classid::TARQModel, std::forward<Operation>(operation));
    }
    template <class Value, class Operation>
    static Status guardedResult(Value* output, Operation&& operation) {
        return tarq::guardedResult(classid::TARQModel, output, std::forward<Operation>(operation));
    }

    void resetSolution();
    RunModel runModel();

    ModelStore store_;
    ParameterTable parameters_;
    SolutionSummary summary_;
    EngineBinding binding_;

    std::string objectName_;
    std::string modelName_;
    ReadingNotes readingNotes_;
    std::string locationOfMathProgDll_ = "mathprog.dll";
    std::string locationOfAmplExe_ = "ampl.exe";
    std::string locationOfTarqAmplExe_ = "tarqampl.exe";
    std::string amplOutputBuffer_;
    std::int32_t amplOutputBufferMaxSize_ = 0x200000;
    MplError mplError_;
    std::string mplWorkingDirectory_;
    bool requiresSave_ = false;
    ConnectionPoint events_{static_cast<ITARQModel&>(*this), _ITARQModelEvents::id};

    // Shared with the thread of a run.
    std::atomic<bool> stopRequested_{false};
    std::atomic<bool> busy_{false};

    std::mutex backgroundMutex_;                 // of background_: a sink may start the next run on another thread
    std::shared_ptr<BackgroundRun> background_;  // the latest, which may have ended
};

}  // namespace tarq
