#include "tessaly/images/RandomNumbers.h"

#include <random>

namespace Tessaly {

namespace {

std::mt19937& generator()
{
    thread_local std::mt19937 numbers(RandomNumbers::DefaultSeed);
    return numbers;
}

} // namespace

void RandomNumbers::seed(unsigned value) { generator().seed(value); }

double RandomNumbers::next() { return std::uniform_real_distribution<double>(0, 1)(generator()); }

} // namespace Tessaly
