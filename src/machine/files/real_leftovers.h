// Working files of copies of the program that crashed while another copy went on. At its start the program
// deletes such leftovers by itself, but at its end it takes each for another running copy, and would store
// neither the history nor its window's place.
#pragma once

#include "machine/real_instances.h"
#include "platform/files.h"

#include <string>

namespace veldrin {

/// Deletes the working files in `folder` when no other copy runs; the own one, which the program is about to
/// delete, goes with them. Where copies cannot be counted nothing is deleted. Raises nothing.
void DeleteLeftovers(Files& files, const RealInstances& instances, const std::string& folder);

}  // namespace veldrin
