#include "tests/qt_surroundings.h"

namespace veldrin {
namespace {

const ::testing::Environment* const Standing = ::testing::AddGlobalTestEnvironment(new Surroundings);

}  // namespace
}  // namespace veldrin
