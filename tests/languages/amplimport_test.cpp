#include "languages/amplimport.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "importfixture.h"
#include "languages/amplexecution.h"
#include "parameters/parameteraccess.h"

namespace tarq {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// A translator is a script here; it finds the stub's name in $stub and the command file in $acf, and tells both away.
class AmplImportTest : public ImportTest {
protected:
    AmplImportTest() {
        (void)file("m.mod", "var x;\n");
        (void)file("sample.nl", sampleStub);
    }

    void translatorDoes(const std::string& script, mode_t mode = 0700) {
        (void)file("am pl", "#!/bin/sh\nfor acf do :; done; stub=${2#-og}\ncp \"$acf\" '" + path("seen.acf") +
                                "'\necho \"$#\" \"$1\" >'" + path("seen.arguments") + "'\n" + script + "\n");
        chmod(path("am pl").c_str(), mode);
    }
    Outcome import(const std::vector<Variant>& data = {}) {
        return readAmplModel(path("m.mod"), ValueList(data, 5), path("am pl"), model);
    }
    Outcome execute(const std::string& driver) {
        return executeAmplModel(path("m.mod"), {path("am pl"), driver, "tarq.dll"}, parameters, model);
    }

    ParameterTable parameters;
};

TEST_F(AmplImportTest, CommandsAreExactAndTheWordsStay) {
    translatorDoes("cp '" + path("sample.nl") + "' \"$stub.nl\"; echo said; echo and told >&2");
    (void)file("a.dat", "");
    std::string data = path("a.dat");
    ASSERT_THAT(import({Variant(data), Variant::byReference(data)}), succeeds());
    EXPECT_EQ(model.store_.columnCount(), 3);
    EXPECT_EQ(model.output_, "said\nand told\n");
    EXPECT_EQ(content("seen.acf"), "reset;\nmodel;\ninclude '" + path("m.mod") + "';\ndata;\ninclude '" + data +
                                       "';\ninclude '" + data + "';\noption auxfiles 'cr';\n");
    EXPECT_EQ(content("seen.arguments"), "3 -P\n");
    EXPECT_THAT(left(), IsEmpty());
    ASSERT_THAT(import(), succeeds());
    EXPECT_EQ(content("seen.acf").find("data"), std::string::npos);
}

TEST_F(AmplImportTest, EveryFailureHasItsWordsAndItsFiles) {
    const Status rejected = status::modelRejected;
    const auto noModel = failsWith(rejected, "Error in AMPL model.");
    translatorDoes("echo line 1: oops; head -c 100000000 /dev/zero");
    EXPECT_THAT(import(), noModel);
    EXPECT_EQ(model.output_.size(), 1023U);
    EXPECT_EQ(model.output_.substr(0, 13), "line 1: oops\n");
    EXPECT_THAT(left(), ElementsAre(".acf"));
    translatorDoes("mkdir \"$stub.nl\"; kill -SEGV $$");
    EXPECT_THAT(import(), noModel);
    EXPECT_THAT(left(), ElementsAre(".acf", ".acf", ".nl"));
    translatorDoes("echo short >\"$stub.nl\"; echo >\"$stub.row\"");
    EXPECT_THAT(import(), failsWith(status::temporaryFile, "AMPL I/O Error."));
    EXPECT_THAT(left(), ElementsAre(".acf", ".acf", ".acf", ".nl", ".nl", ".row"));
    translatorDoes("", 0600);
    EXPECT_THAT(import(), failsWith(status::externalProcess, "Can't start AMPL.EXE process."));

    const auto noText = failsWith(status::invalidArgument, "Parameter for .dat filename is no string.");
    for (const Variant& value : {Variant(3), Variant::missing(), Variant()}) EXPECT_THAT(import({value}), noText);
    EXPECT_THAT(
        import({Variant(path("no.dat"))}),
        failsWith(status::fileNotReachable, "Could not find .DAT file '" + path("no.dat") + "'. Bad filename."));
    std::filesystem::remove_all(folder_ / "temporary");
    EXPECT_THAT(import(), failsWith(status::temporaryFile, "Can't create teporary stub file."));
    EXPECT_THAT(execute(path("m.mod")), failsWith(status::temporaryFile, "Unable to create temporary profile."));
    EXPECT_THAT(execute(path("none")),
                failsWith(status::fileNotReachable, "Could not find TARQAMPL.EXE. Bad filename."));
    std::filesystem::remove(path("m.mod"));
    EXPECT_THAT(import(), failsWith(status::fileNotReachable, "Could not find .MOD file. Bad filename."));
    std::filesystem::remove(path("am pl"));
    EXPECT_THAT(import(), failsWith(status::fileNotReachable, "Could not find AMPL.EXE. Bad filename."));
    EXPECT_TRUE(model.isOld());
}

TEST_F(AmplImportTest, RunInTheTranslatorsHandsLeavesTheModelAndNoFiles) {
    translatorDoes("profile=$(sed -n \"s/option LocationOfTARQProfile '\\(.*\\)';/\\1/p\" \"$acf\")\n" +
                   ("cp \"$profile\" '" + path("seen.profile")) + "'; echo \"$profile\"; exit 9");
    ASSERT_THAT(writeParameter(parameters, "xmiter", Variant(77), 1e25), succeeds());
    ASSERT_THAT(execute(path("sample.nl.exe")), succeeds());
    const std::string profile = model.output_.substr(0, model.output_.size() - 1);
    EXPECT_EQ(content("seen.acf"), "reset;\nreset options;\noption solver '" + path("sample.nl") +
                                       "';\noption LocationOfTARQProfile '" + profile +
                                       "';\noption LocationOfTARQDLL 'tarq.dll';\ninclude '" + path("m.mod") + "';\n");
    EXPECT_NE(content("seen.profile").find("xmiter = 77\n"), std::string::npos);
    EXPECT_THAT(left(), IsEmpty());
    EXPECT_TRUE(model.isOld());
    translatorDoes("", 0600);
    EXPECT_THAT(execute(path("m.mod")), failsWith(status::externalProcess, "Can't start AMPL.EXE process."));
    EXPECT_THAT(left(), IsEmpty());
}

}  // namespace
}  // namespace tarq
