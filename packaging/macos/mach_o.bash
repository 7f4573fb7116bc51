# What the programs and libraries of a bundle say of themselves; to be sourced.

# Prints of each file of the bundle $1 that is a program or a library, a line each: the file, a tab, "load",
# "rpath" or "needs", a tab, and the library, the folder or the least system.
machO() {
  local file
  find "$1/Contents" -type f | while IFS= read -r file; do
    # What is no program or library has nothing to list, which is no failure.
    { otool -arch all -l "$file" 2>/dev/null || true; } | awk -v file="$file" -v OFS='\t' '
      $1 == "cmd" { command = $2 }
      function value() { sub(/^ *[a-z]+ /, ""); sub(/ \(offset [0-9]+\)$/, ""); return $0 }
      $1 == "name" && command ~ /^LC_(LAZY_)?LOAD_(WEAK_|UPWARD_)?DYLIB$|^LC_REEXPORT_DYLIB$/ { print file, "load", value() }
      $1 == "path" && command == "LC_RPATH" { print file, "rpath", value() }
      $1 == "minos" && command == "LC_BUILD_VERSION" { print file, "needs", $2 }
      $1 == "version" && command == "LC_VERSION_MIN_MACOSX" { print file, "needs", $2 }'
  done | sort -u
}

# The least system that the bundle $1 says it needs.
leastSystem() {
  sed -n '/<key>LSMinimumSystemVersion</{n;s/.*<string>\(.*\)<.*/\1/p;}' "$1/Contents/Info.plist"
}
