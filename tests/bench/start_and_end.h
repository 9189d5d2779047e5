// How fast the show comes and goes, beside a bare program.
#pragma once

namespace bench {

// Needs e2e::builtFolder.
void BenchStartAndEnd();

}  // namespace bench
