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

std::string answer;

// One request: its JSON, and what its run reports.  Parsing it sets the
// run's budgets and takes its -D values.
struct Request {
  explicit Request(const char* text) : body(json::parse(text, nullptr, false)) {
    if (!valid()) return;
    lumeric::precisionQuantum = kStartPrecision;
    lumeric::setRandomState(kStartRandomState);
    lumeric::RunLimits limits;
    limits.maxNodes = body.value("maxNodes", limits.maxNodes);
    limits.maxEvaluations = body.value("maxEvaluations", limits.maxEvaluations);
    limits.confine = true;
    lumeric::theRun.limits = limits;
    for (const json& change : body.value("overrides", json::array())) {
      additions.overrides.push_back({change.value("node", ""), change.value("field", ""), change.value("value", "")});
    }
    input = body.value("input", "");
  }

  bool valid() const { return !body.is_discarded(); }

  // `reply` with the run's messages, error count and -D failure added.
  const char* answer(json reply) const {
    reply["messages"] = view.messages;
    reply["errors"] = view.errors;
    if (!additions.overrideError.empty()) reply["overrideError"] = additions.overrideError;
    ::answer = reply.dump();
    return ::answer.c_str();
  }

  const json body;
  CollectingView view;
  lumeric::RunAdditions additions;
  std::string input;
};

}  // namespace

extern "C" {

// {"input": PATH, "output": PATH, "format": "glb"|"wrl"|"stl"|"obj"|...,
//  "maxNodes": N, "maxEvaluations": N, "overrides": [{"node","field","value"}]}
// gives {"errors": N, "messages": [...], "overrideError"?}.
EMSCRIPTEN_KEEPALIVE const char* lumeric_export(const char* requestText) {
  Request request(requestText);
  if (!request.valid()) return request.answer({{"requestError", "not JSON"}});
  lumeric::ExportRequest exportRequest;
  exportRequest.inputPath = request.input.c_str();
  exportRequest.outputPath = request.body.value("output", "");
  if (!lumeric::exportFormatByName(request.body.value("format", "glb"), exportRequest.format)) {
    return request.answer({{"requestError", "unknown format"}});
  }
  exportRequest.additions = &request.additions;
  lumeric::runExport(exportRequest, &request.view);
  return request.answer(json::object());
}

// {"input": PATH, budgets and overrides as above} gives the --parameters
// listing: {"parameters": [...], "errors": N, "messages": [...]}.
EMSCRIPTEN_KEEPALIVE const char* lumeric_parameters(const char* requestText) {
  Request request(requestText);
  if (!request.valid()) return request.answer({{"requestError", "not JSON"}});
  std::vector<lumeric::SceneParameter> parameters;
  lumeric::listSceneParameters(request.input.c_str(), &request.view, &request.additions, parameters);
  return request.answer(json::parse(lumeric::parametersJson(parameters)));
}

}  // extern "C"
