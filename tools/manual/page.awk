# Completes one page of the manual: reads what cmark-gfm made of it and prints the whole page, with the list of all
# pages and of this page's sections. In the environment: `page`, the page's name; `source`, the folder with its Markdown;
# `contents`, a line with name and title, separated by a tab, for each page. Bytes above 127 are passed on as they are.

BEGIN {
    page = ENVIRON["page"]
    source = ENVIRON["source"]
    contents = ENVIRON["contents"]
}

function escaped(text) {
    gsub(/&/, "\\&amp;", text)
    gsub(/</, "\\&lt;", text)
    return text
}

function slug(text) {
    text = tolower(text)
    gsub(/<[^>]*>/, "", text)
    gsub(/&[a-z]+;/, "", text)
    gsub(/[^a-z0-9 -]/, "", text)
    gsub(/ /, "-", text)
    return text
}

# <img> with a variant for dark screens, where there is one.
function picture(tag,    file, dark) {
    if (!match(tag, /src="[^"]*"/))
        return tag
    file = substr(tag, RSTART + 5, RLENGTH - 6)
    dark = file
    if (!sub(/-light\.png$/, "-dark.png", dark))
        return tag
    if (!exists(source "/" dark) && !exists(source "/../screenshots/" substr(dark, 8)))
        return tag
    return "<picture><source media=\"(prefers-color-scheme: dark)\" srcset=\"" dark "\" />" tag "</picture>"
}

function exists(file,    line, status) {
    status = (getline line < file)
    close(file)
    return status > 0
}

{
    gsub(/src="\.\.\/screenshots\//, "src=\"images/")
    while (match($0, /href="[a-z-]+\.md[#"]/)) {
        link = substr($0, RSTART, RLENGTH)
        sub(/\.md/, ".html", link)
        $0 = substr($0, 1, RSTART - 1) link substr($0, RSTART + RLENGTH)
    }
    if (match($0, /<img [^>]*>/)) {
        before = substr($0, 1, RSTART - 1)
        after = substr($0, RSTART + RLENGTH)
        $0 = before picture(substr($0, RSTART, RLENGTH)) after
    }
    if (match($0, /^<h[23]>.*<\/h[23]>$/)) {
        level = substr($0, 3, 1)
        text = substr($0, 5, length($0) - 9)
        id = slug(text)
        if (id in ids)
            id = id "-" ++ids[id]
        else
            ids[id] = 0
        if (level == 2) {
            plain = text
            gsub(/<[^>]*>/, "", plain)
            sections = sections "<li><a href=\"#" id "\">" plain "</a></li>\n"
        }
        $0 = "<h" level " id=\"" id "\">" text "</h" level ">"
    }
    gsub(/<table>/, "<div class=\"table\"><table>")
    gsub(/<\/table>/, "</table></div>")
    body = body $0 "\n"
}

END {
    count = split(contents, lines, "\n")
    for (i = 1; i <= count; ++i) {
        if (split(lines[i], fields, "\t") != 2)
            continue
        if (fields[1] == page) {
            title = fields[2]
            list = list "<li><a href=\"" fields[1] ".html\" aria-current=\"page\">" escaped(fields[2]) "</a>"
            if (sections != "" && page != "index")
                list = list "\n<ul>\n" sections "</ul>\n"
            list = list "</li>\n"
        } else
            list = list "<li><a href=\"" fields[1] ".html\">" escaped(fields[2]) "</a></li>\n"
    }
    print "<!DOCTYPE html>"
    print "<html lang=\"en\">"
    print "<head>"
    print "<meta charset=\"utf-8\" />"
    print "<meta name=\"viewport\" content=\"width=device-width\" />"
    print "<meta name=\"color-scheme\" content=\"light dark\" />"
    print "<title>" escaped(title) (page == "index" ? "" : " – Vantrell") "</title>"
    print "<link rel=\"stylesheet\" href=\"manual.css\" />"
    print "</head>"
    print "<body>"
    print "<nav aria-label=\"Contents\">"
    print "<ul>"
    printf "%s", list
    print "</ul>"
    print "</nav>"
    print "<main>"
    printf "%s", body
    print "</main>"
    print "</body>"
    print "</html>"
}
