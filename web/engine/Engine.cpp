// The playground's engine: the translator and the exporter compiled to
// WebAssembly, run in a Web Worker on the worker's in-memory file system.
// Each entry point takes a request as JSON and returns its answer as JSON,
// valid until the next call.
#include <emscripten/emscripten.h>

#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "cli/MessageFormat.h"
#include "core/LastingState.h"
#include "core/RunState.h"
#include "driver/ExportRun.h"
#include "driver/SceneParameters.h"
#include "expr/functions/RandomGenerator.h"
#include "lumeric/lumeric.h"

namespace {

using nlohmann::json;

// Keeps every message of a run with its place, as the page lists them.
class CollectingView : public CReportErrorView {
 public:
  int post(const char* text, int flag) override {
    const lumeric::MessageParts parts = lumeric::splitMessage(text, flag);
    static const char* const kSeverities[] = {"error", "warning", "note"};
    json message = {{"severity", kSeverities[parts.severity]}, {"text", parts.text}};
    if (parts.hasFile) message["file"] = parts.file;
    if (parts.hasLine) message["line"] = parts.line;
    if (parts.severity == lumeric::MessageParts::kError) ++errors;
    messages.push_back(message);
    return 0;
  }
  json messages = json::array();
  int errors = 0;
};

// What the library keeps from one run to the next (the PRECISION step, the
// random generator), as the module was loaded: every request starts as the
// command does in a new process, whatever the page translated before.
const double kStartPrecision = lumeric::precisionQuantum;
const uint32_t kStartRandomState = lumeric::randomState();

// The run's budgets and the -D values a request gives.
void takeRequest(const json& request, lumeric::RunAdditions& additions) {
  lumeric::precisionQuantum = kStartPrecision;
  lumeric::setRandomState(kStartRandomState);
  lumeric::RunLimits limits;
  limits.maxNodes = request.value("maxNodes", limits.maxNodes);
  limits.maxEvaluations = request.value("maxEvaluations", limits.maxEvaluations);
  limits.confine = true;
  lumeric::theRun.limits = limits;
  for (const json& change : request.value("overrides", json::array())) {
    additions.overrides.push_back(
        {change.value("node", ""), change.value("field", ""), change.value("value", "")});
  }
}

std::string answer;

const char* reply(json body, const CollectingView& view, const lumeric::RunAdditions& additions) {
  body["messages"] = view.messages;
  body["errors"] = view.errors;
  if (!additions.overrideError.empty()) body["overrideError"] = additions.overrideError;
  answer = body.dump();
  return answer.c_str();
}

}  // namespace

extern "C" {

// {"input": PATH, "output": PATH, "format": "glb"|"wrl"|"stl"|"obj"|...,
//  "maxNodes": N, "maxEvaluations": N, "overrides": [{"node","field","value"}]}
// gives {"errors": N, "messages": [...], "overrideError"?}.
EMSCRIPTEN_KEEPALIVE const char* lumeric_export(const char* requestText) {
  const json request = json::parse(requestText, nullptr, false);
  CollectingView view;
  lumeric::RunAdditions additions;
  if (request.is_discarded()) return reply({{"requestError", "not JSON"}}, view, additions);
  takeRequest(request, additions);
  const std::string input = request.value("input", "");
  lumeric::ExportRequest exportRequest;
  exportRequest.inputPath = input.c_str();
  exportRequest.outputPath = request.value("output", "");
  if (!lumeric::exportFormatByName(request.value("format", "glb"), exportRequest.format)) {
    return reply({{"requestError", "unknown format"}}, view, additions);
  }
  exportRequest.additions = &additions;
  lumeric::runExport(exportRequest, &view);
  return reply(json::object(), view, additions);
}

// {"input": PATH, budgets and overrides as above} gives the --parameters
// listing: {"parameters": [...], "errors": N, "messages": [...]}.
EMSCRIPTEN_KEEPALIVE const char* lumeric_parameters(const char* requestText) {
  const json request = json::parse(requestText, nullptr, false);
  CollectingView view;
  lumeric::RunAdditions additions;
  if (request.is_discarded()) return reply({{"requestError", "not JSON"}}, view, additions);
  takeRequest(request, additions);
  const std::string input = request.value("input", "");
  std::vector<lumeric::SceneParameter> parameters;
  lumeric::listSceneParameters(input.c_str(), &view, &additions, parameters);
  json body = json::parse(lumeric::parametersJson(parameters));
  return reply(body, view, additions);
}

}  // extern "C"
