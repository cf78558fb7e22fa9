# Writes the skin file OUTPUT from COLORS, ROLES and SHEET.
file(READ "${COLORS}" colors)
file(READ "${ROLES}" roles)
file(READ "${SHEET}" sheet)
file(WRITE "${OUTPUT}" "/*\n${colors}${roles}*/\n\n${sheet}")
