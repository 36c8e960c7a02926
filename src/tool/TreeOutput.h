// A finished tree as lines, or as JSON, on standard output.
#pragma once

class ZELDcmTree;

// One line an element, indented by its level; what was left out follows.
void SayTree(const ZELDcmTree& tree);
// {"patients": […], "left_out": […]}.
void SayTreeAsJson(const ZELDcmTree& tree);
