// The module as a file: what it exports, and that it comes and goes without a trace.

#include <dlfcn.h>
#include <elf.h>
#include <gtest/gtest.h>
#include <malloc.h>

#include <cstring>
#include <set>
#include <string>

#include "frame/tokens.h"
#include "module/linkage.h"
#include "support/all_variables.h"
#include "support/fake_host.h"
#include "support/file_text.h"
#include "support/paths.h"

namespace {

const std::string kModuleFile = BinaryDir() + "/tz900.gau";

// Names of the defined global symbols of a 64-bit ELF file's dynamic table.
std::set<std::string> ExportedSymbols(const std::string& path) {
    const std::string bytes = FileText(path);
    std::set<std::string> names;
    const auto read = [&](auto& record, std::size_t offset) {
        if (offset + sizeof record <= bytes.size())
            std::memcpy(&record, bytes.data() + offset, sizeof record);
    };
    Elf64_Ehdr header = {};
    read(header, 0);
    for (std::size_t i = 0; i < header.e_shnum; ++i) {
        Elf64_Shdr table = {}, strings = {};
        read(table, header.e_shoff + i * sizeof table);
        if (table.sh_type != SHT_DYNSYM) continue;
        read(strings, header.e_shoff + table.sh_link * sizeof strings);
        for (std::size_t at = 0; at < table.sh_size; at += sizeof(Elf64_Sym)) {
            Elf64_Sym symbol = {};
            read(symbol, table.sh_offset + at);
            if (symbol.st_shndx != SHN_UNDEF && symbol.st_name != 0)
                names.insert(bytes.data() + strings.sh_offset + symbol.st_name);
        }
    }
    return names;
}

// Loads the module into the fake simulator, starts it, runs it past its start and disconnects it. Gives the
// state that it ran in.
void LoadRunUnload(FakeHost& host, std::string& state) {
    host.tokens[kTokenTick18] = 1000;
    host.tokens[kTokenAbsoluteTime] = 1e9;
    void* library = dlopen(kModuleFile.c_str(), RTLD_NOW | RTLD_LOCAL);
    ASSERT_NE(library, nullptr) << dlerror();
    auto* imports = static_cast<ModuleImports*>(dlsym(library, "ImportTable"));
    auto* linkage = static_cast<ModuleLinkage*>(dlsym(library, "Linkage"));
    ASSERT_NE(imports, nullptr);
    ASSERT_NE(linkage, nullptr);
    imports->host = FakeHost::Operations();
    linkage->module_init();
    GaugeInstance server = {&linkage->gauges[0], "", nullptr};
    for (int life = 0; life < 2; ++life) {  // a disconnect and a reconnect in each module life
        for (const int service : {14, 2, 3, 4, 5}) linkage->gauges[0].service(&server, service);
        for (int tick = 0; tick < 18 * 6; ++tick) {
            host.tokens[kTokenTick18] += 1;
            host.tokens[kTokenAbsoluteTime] += 1 / 18.0 * 1.5;
            linkage->gauges[0].service(&server, kServicePreUpdate);
        }
        linkage->gauges[0].service(&server, kServicePreKill);
        linkage->gauges[0].service(&server, kServiceDisconnect);
    }
    state = AllVariables(*linkage->inspection);
    linkage->module_deinit();
    dlclose(library);
    EXPECT_EQ(dlopen(kModuleFile.c_str(), RTLD_NOW | RTLD_NOLOAD), nullptr) << "the module has not left";
}

TEST(ModuleFile, ExportsTwoSymbols) {
    EXPECT_EQ(ExportedSymbols(kModuleFile), (std::set<std::string>{"ImportTable", "Linkage"}));
}

TEST(ModuleFile, ComesAndGoesAHundredTimesWithoutATrace) {
    FakeHost host;
    host.PutFile("Velarion/tz900.cfg", "AccelHt=1000\n");
    host.PutFile("Velarion/TZ900/Navdata/ints.txt", "ABC 47.5 -122.5\n");
    std::size_t settled = 0;
    std::string first_state;
    for (int time = 0; time < 100; ++time) {
        std::string state;
        LoadRunUnload(host, state);
        if (time == 0) first_state = state;
        EXPECT_EQ(state, first_state) << "at time " << time;
        EXPECT_TRUE(host.key_hooks.empty());
        EXPECT_EQ(host.sim_handler, nullptr);
        host.events.clear();
        host.registered_names.clear();
        host.unregistered_names.clear();
        host.registered_names.shrink_to_fit();
        host.unregistered_names.shrink_to_fit();
        host.events.shrink_to_fit();
        host.sim_declarations.clear();
        host.sim_declarations.shrink_to_fit();
        if (time == 9) settled = mallinfo2().uordblks;
    }
    // A leak of a kilobyte a life would stand out.
    EXPECT_LT(mallinfo2().uordblks, settled + 64 * 1024);
}

}  // namespace
