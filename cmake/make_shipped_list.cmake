# Writes the SHA-256 sums of FILES in FOLDER to OUTPUT, as sha256sum does.
set(list "")
foreach(file IN LISTS FILES)
  file(SHA256 "${FOLDER}/${file}" sum)
  string(APPEND list "${sum}  ${file}\n")
endforeach()
file(WRITE "${OUTPUT}" "${list}")
