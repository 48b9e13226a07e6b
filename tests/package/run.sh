# Sourced by ./package --test: builds a host from each archive alone; what is for 64 bits also runs.
install_packages "${run_packages[@]}" pkgconf
make_prefix
start_display
consumer=$root/build/package-test
rm -rf "$consumer"
mkdir -p "$consumer"
for preset in x64 x86; do
    say "Building a host from the archive for $preset"
    unzip -q "dist/EffectSettings-"*"-$preset.zip" -d "$consumer/$preset"
    unpacked=$(echo "$consumer/$preset"/*)
    built=$consumer/$preset/build
    cp -r tests/package "$consumer/$preset/source"
    tools=$([[ $preset == x64 ]] && echo x86_64 || echo i686)-w64-mingw32
    cmake -S "$consumer/$preset/source" -B "$built" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_SYSTEM_NAME=Windows \
        -DCMAKE_C_COMPILER="$tools-gcc-posix" -DCMAKE_CXX_COMPILER="$tools-g++-posix" -DCMAKE_RC_COMPILER="$tools-windres" \
        -DEffectSettings_ROOT="$unpacked" >"$consumer/$preset.log"
    cmake --build "$built" >>"$consumer/$preset.log" || {
        cat "$consumer/$preset.log" >&2
        exit 1
    }
    # shellcheck disable=SC2046 # They are words.
    "$tools-gcc-posix" tests/package/call_from_c.c -o "$built/bin/call_by_pkgconf.exe" \
        $(PKG_CONFIG_LIBDIR=$unpacked/lib/pkgconfig pkg-config --cflags --libs EffectSettings)
done
say "Following docs/integration.md with the host of the README"
unpacked=$(echo "$consumer"/x64/EffectSettings-*)
walk=$consumer/walk
mkdir "$walk"
sed -n '/^```cpp$/,/^```$/{/^```/d;p}' "$unpacked/README.md" >"$walk/minimal_host.cpp"
cmp "$walk/minimal_host.cpp" "$unpacked/examples/minimal_host.cpp"
sed -n '/^ *cmake_minimum_required/,/^$/p' "$unpacked/docs/integration.md" >"$walk/CMakeLists.txt"
sed -n '/-DCMAKE_SYSTEM_NAME/,/^$/p' "$unpacked/docs/integration.md" |
    sed "s#=/path/to/EffectSettings-.*-x64#='$unpacked'#" >"$walk/commands"
(cd "$walk" && CMAKE_GENERATOR=Ninja bash -e commands >commands.log)
diff - <(
    export WINEPATH=$consumer/x64/build/bin
    for host in "$walk/build/my_host.exe" "$unpacked/bin/minimal_host.exe" "$unpacked/bin/minimal_host_c.exe"; do
        timeout 120 scripts/run-wine press_ok.exe "$host" | tr -d '\r'
    done
) <<'END' || {
Gamma Correction Settings: the picture moves
Gamma Correction Settings: the picture moves
EffectSettings
Gamma Correction Settings
gamma 100, on
END
    echo "A host of the archive does not show what it should." >&2
    exit 1
}
timeout 120 scripts/run-wine "$unpacked/bin/demo_host.exe" gamma-correction --screenshot "Z:${consumer//\//\\}\\demo.png"
say "Running the 64-bit host and the checker"
for program in call_from_c call_from_c_by_lib call_by_pkgconf open_all; do
    timeout 120 scripts/run-wine "$consumer/x64/build/bin/$program.exe" || {
        echo "$program failed." >&2
        exit 1
    }
done
timeout 300 scripts/run-wine "$consumer"/x64/EffectSettings-*/bin/EffectSettingsCheck.exe
say "Configuring a host with the sources as a part of it"
cmake -S "$consumer/x64/source" -B "$consumer/from-source" -G Ninja -DEFFECT_SETTINGS_SOURCE="$root" \
    -DCMAKE_TOOLCHAIN_FILE="$root/cmake/mingw-x64.cmake" >"$consumer/from-source.log"
