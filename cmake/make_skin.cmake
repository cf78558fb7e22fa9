# Writes the skin file OUTPUT from COLORS and ROLES.
file(READ "${COLORS}" colors)
file(READ "${ROLES}" roles)
file(WRITE "${OUTPUT}" "/*\n${colors}${roles}*/\n")
