#!/usr/bin/env bash
# Renders pages in a browser, into pictures to be looked at, and fails on a picture that does not show and on a page
# that is wider than its window. Arguments: folder for the pictures; pages (Markdown or HTML). Reports in GoogleTest's
# form.
set -u
out=$1
shift
mkdir -p "$out"
passed=0 failed=()
browser=(chromium --headless=new --no-sandbox --disable-gpu --hide-scrollbars --allow-file-access-from-files
  --user-data-dir="$out/.browser" --window-size=1000,3200)
# What is looked for once everything is loaded; the result stands in the page's own text.
probe='<script>addEventListener("load", () => {
  const broken = [...document.images].filter(image => !image.complete || image.naturalWidth === 0);
  const faults = broken.map(image => "no picture " + image.getAttribute("src"));
  if (document.documentElement.scrollWidth > innerWidth) faults.push("wider than the window");
  const result = document.createElement("pre");
  result.id = "probe-result";
  result.hidden = true;
  result.textContent = "probed: " + (faults.join("; ") || "nothing is wrong");
  document.body.append(result);
});</script>'
style='<style>body { font: 16px/1.5 sans-serif; max-width: 860px; margin: 2em auto; }
  img { max-width: 100%; } pre, code { background: #eee; } pre { overflow: auto; } table { border-collapse: collapse; }
  td, th { border: 1px solid #ccc; padding: 4px 8px; }</style>'
for page in "$@"; do
  name=$(tr / - <<<"${page#./}")
  # Beside the page, so that its pictures are found.
  rendered="$(dirname "$page")/.rendered-$(basename "$page").html"
  case $page in
    *.md) { printf '<!doctype html><meta charset="utf-8">%s\n' "$style" && cmark-gfm -e table "$page" && echo "$probe"; } ;;
    *) cat "$page" && echo "$probe" ;;
  esac >"$rendered"
  "${browser[@]}" --screenshot="$out/$name.png" "file://$PWD/$rendered" >/dev/null 2>&1
  found=$("${browser[@]}" --dump-dom "file://$PWD/$rendered" 2>/dev/null | sed -n 's/.*>\(probed: [^<]*\)<.*/\1/p')
  rm -f "$rendered"
  if [ "$found" = "probed: nothing is wrong" ] && [ -s "$out/$name.png" ]; then
    passed=$((passed + 1))
  else
    echo "Failure"
    echo "$page: ${found:-was not rendered}"
    failed+=("$page")
  fi
done
rm -rf "$out/.browser"
echo "[  PASSED  ] $passed tests."
[ ${#failed[@]} = 0 ] && exit 0
for page in "${failed[@]}"; do echo "[  FAILED  ] Pages.Render/$page (0 ms)"; done
exit 1
