set(LUMERIC_DOCS_TESTS
  docs/ArchitectureMap.cpp
  docs/ArchitectureMapTest.cpp
  docs/GuideExamples.cpp
  docs/LanguageGuideTest.cpp
  docs/ReadmeAuthoringTest.cpp
)
