#include "tools/sim/Simulator.h"

#include "tools/sim/InOrder.h"
#include "tools/sim/Ladder.h"
#include "tools/sim/Options.h"
#include "tools/sim/Progress.h"
#include "tools/sim/ReplayFile.h"
#include "tools/sim/RestPlot.h"
#include "tools/sim/Signature.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <optional>
#include <ostream>

namespace vorbel::sim {

namespace {

constexpr int usageError = 2;

// Takes the matches in their order, and tells them to whom it may concern.
class Output {
public:
    Output(const Options& options, std::ostream& out, std::ostream& errors)
        : options_(options), out_(out), errors_(errors) {
        if (!options_.csv.empty()) {
            rows_.open(options_.csv);
            rows_ << headOfRows() << std::flush;
        }
    }

    // False: nobody waits for more.
    bool take(const MatchReport& report) {
        if (!report.hasEnded) {
            return fails("match " + std::to_string(report.pairing.seed) + " did not end");
        }
        if (!report.isRecorded) {
            return fails("cannot write " + options_.record + '/' + recordingName(report.pairing));
        }
        rows_ << report.rows << std::flush;
        for (const RestingPlace& place : report.places) {
            plot_.add(place);
        }
        if (!options_.ladder) {
            out_ << report.text << std::flush;
        }
        return out_ && areRowsWritten();
    }

    // False, and told why, when anything went wrong.
    bool finish() {
        if (hasFailed_) {
            return false;
        }
        if (!areRowsWritten()) {
            return fails("cannot write " + options_.csv);
        }
        return options_.plot.empty() || isPlotWritten() || fails("cannot write " + options_.plot);
    }

private:
    [[nodiscard]] bool areRowsWritten() const { return options_.csv.empty() || rows_; }
    [[nodiscard]] bool isPlotWritten() const {
        std::ofstream file(options_.plot);
        file << plot_.svg() << std::flush;
        return file.good();
    }
    bool fails(const std::string& why) {
        errors_ << "vorbel-sim: " << why << '\n';
        hasFailed_ = true;
        return false;
    }

    const Options& options_;
    std::ostream& out_;
    std::ostream& errors_;
    std::ofstream rows_;
    RestPlot plot_;
    bool hasFailed_ = false;
};

void makeFolder(const std::string& folder) {
    std::error_code ignored; // then no file can be written in it, which is told
    std::filesystem::create_directories(folder, ignored);
}

bool playMatches(const Options& options, std::ostream& out, std::ostream& errors, std::ostream* terminal) {
    const Wanted wanted{options.trace, !options.csv.empty(), !options.plot.empty(), options.record};
    makeFolder(options.record);
    Output output(options, out, errors);
    if (options.ladder) {
        const LadderSettings settings = ladderSettings(options);
        std::optional<Progress> progress(std::in_place, terminal, matchesOf(settings));
        const WinTable wins = playLadder(settings, wanted, [&](const MatchReport& report) {
            progress->addOne();
            return output.take(report);
        });
        progress.reset();
        if (output.finish()) {
            writeLadder(out, wins, settings.matchesPerCell);
            return true;
        }
        return false;
    }
    inOrder<MatchReport>(
        options.matches, options.jobs,
        [&](std::int64_t i) {
            return reportOf({options.seed + static_cast<std::uint64_t>(i), options.red, options.blue},
                            wanted);
        },
        [&](const MatchReport& report) { return output.take(report); });
    return output.finish();
}

bool run(const Options& options, std::ostream& out, std::ostream& errors, std::ostream* terminal) {
    if (options.help) {
        out << helpText();
    } else if (options.signature) {
        out << std::hex << matchSignature() << '\n';
    } else if (!options.replay.empty()) {
        return replayFile(options.replay, options.trace, out, errors);
    } else {
        return playMatches(options, out, errors, terminal);
    }
    return true;
}

} // namespace

int simulate(std::span<const char* const> arguments, std::ostream& out, std::ostream& errors,
             std::ostream* terminal) {
    const auto parsed = parseOptions(arguments);
    if (const auto* problem = std::get_if<std::string>(&parsed)) {
        errors << "vorbel-sim: " << *problem << '\n';
        return usageError;
    }
    if (!run(std::get<Options>(parsed), out, errors, terminal)) {
        return EXIT_FAILURE;
    }
    if (!out.flush()) {
        errors << "vorbel-sim: cannot write the output\n";
        return EXIT_FAILURE;
    }
    return EXIT_SUCCESS;
}

} // namespace vorbel::sim
