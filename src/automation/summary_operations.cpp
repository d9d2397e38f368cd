#include "automation/operations.h"

namespace kestra {

std::vector<Operation> summaryOperations() {
  using Given = Arguments;
  return {
      {"LoadSummaryStore",
       {},
       [](Application& application, const Given&) -> Json {
         application.summary.LoadSummaryStore();
         return nullptr;
       }},
      {"SaveSummaryStore",
       {"path"},
       [](Application& application, const Given& a) -> Json {
         requireDone(application.summary.SaveSummaryStore(a.text(0)));
         return nullptr;
       }},
      {"LoadDigestEntry",
       {"fieldOffset", "digestPath", "entryName"},
       [](Application& application, const Given& a) -> Json {
         return application.summary.LoadDigestEntry(a.integer(0), a.text(1), a.text(2));
       }},
  };
}

}  // namespace kestra
