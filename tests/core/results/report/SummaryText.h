// The input summary of a test's project, whole or by block.
#pragma once

#include "core/results/report/InputSummary.h"

#include <string>
#include <vector>

/// 7 March 2009, 9:05:03, and a company block.
CSummaryHead SummaryHead();

std::string SummaryText(const CProjectData& project, ESummaryScope scope = ESummaryScope::Both);
std::vector<std::string> SummaryLines(const CProjectData& project, ESummaryScope scope = ESummaryScope::Both);
/// The lines of a document from the first that begins with a text to the one that closes its frame. Fails the
/// running test if there is none.
std::vector<std::string> SummaryBlock(const CProjectData& project, const std::string& first);
/// The line of a document that begins with a text. Fails the running test if there isn't exactly one.
std::string SummaryLine(const CProjectData& project, const std::string& begin);
