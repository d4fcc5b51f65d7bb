#include <string>
#include <string_view>

#include "korvin-file/file_options.h"

namespace korvin::file {
namespace {

constexpr std::string_view page = R"page(KORVIN-FILE(1)

NAME
    korvin-file - shows, checks and converts the measuring files of KORVIN

SYNOPSIS
    korvin-file show FILE... [--json] [-o OUT]
    korvin-file text FILE... [-o OUT]
    korvin-file csv FILE... [-o OUT]
    korvin-file report FILE... -o OUT.pdf [--parts PART,...]
    korvin-file check FILE...

DESCRIPTION
    Reads measuring files and tells what they hold, for archives and for
    other programs. It opens no window, changes no setting, and leaves no
    trace where the files lie: a read-only archive will do.

    FILE is the head of a measurement, as "part.O"; the files beside it are
    found by its name. While KORVIN saves a measurement, the old or the new
    one is read, never half of each.

    Position measurements (*.O) and straightness measurements (*.G, also of
    both older lengths) can be read.

COMMANDS
    show        the kind, every field by its name, the points, and their
                statistics or evaluations; with --json for programs (see
                JSON)
    text        the text copy, as saving would write it: Windows-1252, or
                UTF-8 with a byte order mark where the language needs it
    csv         a table of the points: UTF-8, commas, a heading, a line a
                point (see CSV)
    report      the printed report as a PDF, with all its parts
    check       whether each file is a whole, readable measuring file, one
                line each

OPTIONS
    A value stands behind its option or after an equals sign: "--language 1",
    "--language=1". The last of several counts. Behind "--" all arguments
    are files.

    -o OUT, --output OUT  write to the file OUT instead of standard output.
                          If OUT is a folder, each result goes there under
                          the name of its file and an ending: "part.O.csv",
                          ".txt" for text and show, ".json" for JSON,
                          ".pdf". text, csv and report of several files need
                          a folder. "-" is standard output.
    --json                show in JSON
    --parts PART,...      only these parts of the report. A *.O has diagram, x
                          and y: the page with the diagram, and the columns
                          of the table. A *.G has x-diagram, y-diagram, x
                          and y.
    --language N          of text copy and report: 0 German (default),
                          1 English, 2 French, 3 Italian, 4 Spanish,
                          5 Swedish, 6 Chinese, 7 Japanese
    --dictionary FILE     the dictionary with the words of these languages;
                          without it korvin.mdb beside the program, then in
                          the program's folder in the user's data
    --inch                lengths in the inch system. A *.O is never
                          converted: its numbers stand in the unit they were
                          measured in, which the file does not tell. Its
                          report names mil instead of mm. A *.G is told in
                          inch along the line and mil across it; its fields
                          stay as they lie in the file, in mm.
    --penta ARCSECONDS    squareness error of the penta prism, -3600 to 3600
                          (default 0). A *.O and a *.G have no use for it.
    --help                print this page
    --version             print the version

JSON
    One object, or, for several files, a list of them; a file that cannot be
    read is left out. Its members:

    file         the name, as it was given
    kind         "position", "straightness"
    length       bytes of the head
    fields       each field of the record by its name, in the order of the
                 file; texts without the blanks at their end, flags as -1
                 and 0, bytes that no one reads as hexadecimal digits

    Of a *.O:

    points       number, time (ISO 8601, local time where it was measured),
                 x, y; the offset is not subtracted
    statistics   for x and y: count of the readings, offset, and of the
                 readings less the offset mean, deviation (of the sample),
                 maximum, minimum, span

    Of a *.G:

    fields       in mm, and with 999 where nothing was taken. An older form
                 has fewer elements; one without line settings is given the
                 usual ones.
    units        "mm", or with --inch "in" of z and "mil" of x and y
    points       number, z (where it lies, also after it was moved), x, y as
                 they were read
    evaluated    ROH_mm (as read), ISO_mm (less the least squares line) and
                 REF_mm (less the line through Ref1 and Ref2), with --inch
                 ROH_mil, ISO_mil, REF_mil; in each, for X and Y: values,
                 mean, deviation (of the sample), max, min, and section, the
                 one of about ProEinheit with the largest range: whether one
                 was found, its value (the range), length and start (its
                 first point; 999 for none). It is searched in even steps,
                 also where points were moved. In ROH_mil an open reading
                 counts as 999 mm, as in the program.

    Numbers have as many digits as it takes to read back the same number.
    What was not measured is null, and so is what JSON has no word for.

CSV
    A cell is empty where JSON has null. The columns of a *.O are number,
    time, x and y, as in JSON. Those of a *.G bear their unit, mm, or with
    --inch in and mil: number, z_mm, x_mm and y_mm (as read), x_ISO_mm,
    y_ISO_mm, x_REF_mm and y_REF_mm, whatever the file's own evaluation is.

OUTPUT
    A result is written beside OUT and takes its place when it is whole: OUT
    is never half a file. A measuring file is never written over.

    check writes "FILE: ok (KIND, N points)" or "FILE: bad: REASON".

EXIT STATUS
    0 all went well, 1 a file is bad or a result could not be written, 2 the
    program was called wrongly; then nothing was done.

EXAMPLES
    korvin-file show part.O
    korvin-file show --json part.O | jq .statistics.x.mean
    korvin-file show --json line.G | jq .evaluated.ISO_mm.X.section
    korvin-file csv *.O *.G -o tables/
    korvin-file report part.O -o part.pdf --parts diagram,x --language 1
    korvin-file check archive/*.O || echo "some are bad"
)page";

}  // namespace

std::string helpText() {
  return std::string(page);
}

}  // namespace korvin::file
