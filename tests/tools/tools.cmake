# The independent-reader tool is added here.
