// Replays inputs through a fuzz target without the fuzzing engine, so that any compiler
// builds it and the tests run the corpora and the kept crash inputs in seconds.
#include <boost/filesystem.hpp>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <fstream>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size);

namespace {

namespace fs = boost::filesystem;

void replay(const fs::path& file)
{
    std::ifstream in(file.string(), std::ios::binary);
    if (!in)
        throw std::runtime_error("cannot open " + file.string());
    const std::vector<char> bytes{std::istreambuf_iterator<char>(in),
                                  std::istreambuf_iterator<char>()};
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size());
}

// The files given, and the files directly in the folders given, in name order.
std::vector<fs::path> inputsOf(int argc, char** argv)
{
    std::vector<fs::path> inputs;
    for (int i = 1; i < argc; ++i) {
        const fs::path given(argv[i]);
        if (!fs::is_directory(given)) {
            inputs.push_back(given);
            continue;
        }
        // Dot files only keep a folder in the repository.
        for (const auto& entry : fs::directory_iterator(given))
            if (fs::is_regular_file(entry.path())
                && entry.path().filename().string().front() != '.')
                inputs.push_back(entry.path());
    }
    std::sort(inputs.begin(), inputs.end());
    return inputs;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        const std::vector<fs::path> inputs = inputsOf(argc, argv);
        for (const auto& input : inputs) {
            std::cerr << "replaying " << input.string() << '\n';
            replay(input);
        }
        std::cout << "replayed " << inputs.size() << " inputs\n";
    } catch (const std::exception& error) {
        std::cerr << argv[0] << ": " << error.what() << '\n';
        return 1;
    }
    return 0;
}
