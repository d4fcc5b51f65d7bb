#include <algorithm>
#include <string>
#include <string_view>

#include "korvin-head/head_options.h"

namespace korvin::head {

namespace {

constexpr std::string_view kBefore = R"(KORVIN-HEAD(1)

NAME
    korvin-head - a virtual sensor head on a pseudo-terminal

SYNOPSIS
    korvin-head [--port N | --device-link PATH] [OPTION]...

DESCRIPTION
    Behaves like a sensor head on a serial line, for training, demonstration
    and tests. It opens a pseudo-terminal and links it as a port of KORVIN,
    then answers the program's telegrams until it is ended by SIGINT,
    SIGTERM or SIGHUP, and takes its link away again.

    A T telegram is answered at once; M after the time of its filter level
    (0.5, 1, 2, 5 and 10 s for the levels 0 to 4, 0.05 s for 5 to 7); J after
    0.2 s at the levels 0 to 4 and 0.05 s at 5 to 7. A new telegram ends a
    measurement that is under way.

    The head understands only what comes at its own line speed, with a right
    check character, for its own id or for the id 0; it is silent otherwise.

    A value stands behind its option or after an equals sign: "--port 7",
    "--port=7". The last of several counts.

LINE
    --port N              serve port N of KORVIN, 1 to 999 (default 1): the
                          link com<N> in the folder korvin/ports of the
                          configuration folder, XDG_CONFIG_HOME or ~/.config
    --device-link PATH    place the link at PATH instead
    --baud N              line speed, 19200 or 115200 (default 115200), as
                          the program has set it on the terminal
    --modulus N           modulus of the check character, 95 or 223
                          (default 223)
    --time-scale F        multiply all answer times by F, 0 to 100 (default
                          1). The noise stays that of the unscaled time.

HEAD
    --class C             class of the head (default 1, the small head)
    --id C                id of the head (default 1)
    --intensity P         laser intensity in percent, 0 to 99 (default 85)
    --battery-low         report a low battery
    --battery-low-after S report it from S seconds after the start
    --keys FILE           press keys at the times told by FILE (see KEYS)
    --key-hold S          report a pressed key for S seconds (default 0: in
                          one answer only)

BEAM
    --x MM, --y MM        position relative to the head's centre at the
                          start, -100 to 100 (default 0). Y counts as the
                          head counts it; KORVIN may show the other sign.
    --drift X,Y           movement in mm per hour (default 0,0)
    --line TILT,BOW,NOISE the head is carried along a guideway, on to the next
                          point after each M answer: after n points X lies
                          TILT n + BOW n^2 um off, Y half of that the other
                          way; NOISE as in --noise
    --circle R,N          the head is turned on a circle of R mm, on to the
                          next of N even positions after each M answer
    --noise UM            standard deviation of a reading in um after 1 s of
                          averaging (default 0.5). It falls with the square
                          root of the time: a tenth of it after 100 s.
    --seed N              of all random numbers (default 1); the same seed
                          gives the same noise and the same faults

FAULTS
    A DOSE is a rate, the chance from 0 to 1 at each answer, or a count, "3x"
    for three answers in a row. "@K" behind it spares the first K answers:
    "3x@100". Several faults may strike together.

)";

constexpr std::string_view kAfter = R"(
    --late-time S         seconds that a late answer is late (default 0.7)
    --split-pause S       pause between two pieces (default 0.02)
    --hang-up-time S      seconds until the line is back (default 3). The
                          link is gone meanwhile, then leads to a new device.

PROGRAM
    --ready-file FILE     write the "ready" line to FILE too; the file goes
                          with the link
    --trace               tell all traffic on standard error, as hexadecimal
                          bytes and in words
    --quiet               print nothing on standard output
    --help                print this page
    --version             print the version

KEYS
    The letters m, j, l and r on standard input press the keys of the head
    (single measurement, running measurement, cursor left and right); on a
    terminal, followed by Enter. A key waits until an answer has reported it.
    The letter n carries the head on to its next place on --line and --circle,
    as an M answer does: points made of J answers take no M.

    A key script has one press a line: seconds since the start and the
    letter, "2.5 M". "+1 J" is one second after the line before. Empty lines
    and what follows a "#" are left out.

OUTPUT
    ready PORT DEVICE     the line is open and linked, at the start and after
                          each hang-up; with --device-link, PORT is its path
    gone PORT             the line has hung up
    end requests=N answers=N ...
                          at the end: telegrams understood, answers made,
                          frames with a wrong check character, frames that
                          are no request, requests for another head, bytes at
                          another speed, and how often each fault struck

EXIT STATUS
    0 ended by a signal, 1 the line or the link cannot be had, 2 an option is
    wrong.

FILES
    ~/.config/korvin/ports/com<N>
        The link of port N. A file, or a link to another device that is
        there, is never replaced; a link that a head left behind is.

EXAMPLES
    korvin-head --port 7 --baud 19200 --modulus 95 --trace
    korvin-head --drift 0.1,-0.02 --noise 2 --keys keys.txt
    korvin-head --silence 0.02 --flip 0.05 --hang-up 1x@200 --seed 42
)";

constexpr std::size_t kColumn = 26;

std::string faultLine(const FaultInfo& info) {
  std::string line = "    --" + std::string(info.name) + " DOSE";
  line.resize(std::max(line.size() + 1, kColumn), ' ');
  return line + std::string(info.meaning) + "\n";
}

}  // namespace

std::string helpText() {
  std::string text(kBefore);
  for (const FaultInfo& info : faultTable()) text += faultLine(info);
  return text.append(kAfter);
}

}  // namespace korvin::head
