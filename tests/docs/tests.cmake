set(LUMERIC_DOCS_TESTS
  docs/ArchitectureMap.cpp
  docs/ArchitectureMapTest.cpp
  docs/GuideExamples.cpp
  docs/LanguageGuideTest.cpp
  docs/ReadmeAuthoringTest.cpp
)

# GCC 12's <regex> (std::function inside its matcher) trips a false
# -Wmaybe-uninitialized when built with the sanitizers.
set_source_files_properties(docs/ArchitectureMap.cpp PROPERTIES COMPILE_OPTIONS -Wno-maybe-uninitialized)
