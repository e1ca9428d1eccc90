# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

# The target HepMC3; the package of that name only sets variables.

find_package(HepMC3 REQUIRED)
add_library(HepMC3 SHARED IMPORTED)
set_target_properties(HepMC3 PROPERTIES IMPORTED_LOCATION ${HEPMC3_LIB})
target_include_directories(HepMC3 SYSTEM INTERFACE ${HEPMC3_INCLUDE_DIR})
