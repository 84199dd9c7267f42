// CTARQModel: models in AMPL, runs in AMPL's hands, and AMPL's stub files.
#include "component/ctarqmodel.h"
#include "languages/amplexecution.h"
#include "languages/amplimport.h"
#include "languages/amplstub.h"

namespace tarq {

Status CTARQModel::ReadAMPLModel(const std::string& MODFileName, const ValueList& DATFileNames) {
    return guarded([&] { return readAmplModel(MODFileName, DATFileNames, locationOfAmplExe_, *this); });
}

Status CTARQModel::ReadAMPLStub(const std::string& StubFileName) {
    return guarded([&] { return readAmplStub(StubFileName, *this); });
}

Status CTARQModel::ExecuteAMPLModel(const std::string& MODFileName) {
    return guarded([&] {
        return executeAmplModel(MODFileName, {locationOfAmplExe_, locationOfTarqAmplExe_, binding_.location()},
                                parameters_, *this);
    });
}

// NOLINTNEXTLINE(bugprone-reserved-identifier)
Status CTARQModel::_WriteAMPLSolStub(const std::string& StubFileName) {
    return guarded([&] {
        return writeAmplActivities(StubFileName, store_, readShared(summary_.solverStatus),
                                   readShared(summary_.solutionStatus));
    });
}

}  // namespace tarq
