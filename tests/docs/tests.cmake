set(LUMERIC_DOCS_TESTS
  docs/GuideExamples.cpp
  docs/LanguageGuideTest.cpp
  docs/ReadmeAuthoringTest.cpp
)
