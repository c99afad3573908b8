// SPDX-License-Identifier: GPL-3.0-or-later
// What the user reads when the program cannot start.
#include "shell/start_up_refusal.h"

#include "runtime/files.h"

namespace kav {

namespace {

std::string preferencesRefusal(const std::string& path, const Failure& failure) {
    switch (failure.number()) {
        case kFileNotFound:
        case kPathNotFound:
            return "The preferences file is missing: " + path +
                   "\nPut back the prefs.ini that was installed with the program, or install it again.";
        case kInputPastEnd:
            return "The preferences file is too short: " + path + "\n" + failure.description() +
                   ".\nAdd the missing lines (they may be empty), or replace the file with the prefs.ini "
                   "that "
                   "was installed with the program.";
        default:
            return "The preferences file cannot be read: " + path + "\n" + failure.description() +
                   ".\nMake it a file that you may read, then start again.";
    }
}

std::string projectsFolderRefusal(const std::string& path, const Failure& failure) {
    if (fileExists(path)) {
        return "This is the program's first run, and the projects folder that it makes is already there: " +
               path +
               "\nMove or rename that folder, then start again. To keep it where it is, change line 16 of "
               "prefs.ini from 1 to 0: then this is no first run.";
    }
    return "The projects folder cannot be made: " + path + "\n" + failure.description() +
           ".\nMake sure that you may write to the program's folder, then start again.";
}

std::string commandLineRefusal(const std::string& path, const Failure& failure) {
    return "The file named on the command line cannot be opened: " + path + "\n" + failure.description() +
           ".\nThe whole command line is taken as one path. Check that the file is there and that you may "
           "read it, or start without a file.";
}

}  // namespace

std::string startUpRefusal(StartUpStage stage, const std::string& path, const Failure& failure) {
    switch (stage) {
        case StartUpStage::ReadPreferences:
            return preferencesRefusal(path, failure);
        case StartUpStage::MakeProjectsFolder:
            return projectsFolderRefusal(path, failure);
        case StartUpStage::OpenCommandLine:
            return commandLineRefusal(path, failure);
    }
    return failure.description();
}

}  // namespace kav
