# The picture of the layers (scripts/layers-graph.sh): the project's libraries and
# programs, without the packages outside the project.
set(GRAPHVIZ_GRAPH_NAME "KQEdit layers")
set(GRAPHVIZ_EXTERNAL_LIBS FALSE)
set(GRAPHVIZ_GENERATE_PER_TARGET FALSE)
set(GRAPHVIZ_GENERATE_DEPENDERS FALSE)
set(GRAPHVIZ_IGNORE_TARGETS "kq_test_support;.*_tests$;.*_bench$;.*_replay$;.*_fuzz$")
