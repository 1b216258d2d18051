// Random documents for comparing the editor's commands with their plain descriptions.
#pragma once

#include <cstdint>
#include <random>

#include "ui/model/list_controls.h"

namespace kq::test {

struct RandomDocOptions {
  int maxLines = 40;
  double faultRate = 0.05;  // chance that a reference names something undeclared
  double illegalRate = 0;   // chance of a type that ends the program
};

// Resets the document and fills declarations and lines at random.
void BuildRandomDocument(ui::ListBox& list, std::mt19937& rng, const RandomDocOptions& options);

}  // namespace kq::test
