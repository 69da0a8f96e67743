# Checks of the sources themselves, taken into the one run of all tests.
get_filename_component(root "${CMAKE_CURRENT_LIST_DIR}/../.." ABSOLUTE)
add_test(check.selftest /usr/bin/python3 -m unittest -v test_checks)
set_tests_properties(check.selftest PROPERTIES WORKING_DIRECTORY "${root}/tests/checks")
add_test(check.layers /usr/bin/python3 "${root}/tools/check_layers.py")
add_test(check.sizes /usr/bin/python3 "${root}/tools/check_sizes.py")
add_test(check.commands /usr/bin/python3 "${root}/tools/check_commands.py")
add_test(check.format "${root}/tools/check_format.sh")
