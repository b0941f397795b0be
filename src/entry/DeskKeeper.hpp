// Keeps the open problem while something else uses the worksheet.
#pragma once

#include "Windows.hpp"
#include "Workspace.hpp"

#include <utility>

namespace ordwise {

// From its making to its end everything that the logic does to the problem, the worksheet and the
// commands is undone, as if it had been done on another desk.
class DeskKeeper {
public:
    DeskKeeper() : workspace_(ws), main_(frmMain), paper_(frmPaper) {}
    DeskKeeper(const DeskKeeper&) = delete;
    DeskKeeper& operator=(const DeskKeeper&) = delete;
    ~DeskKeeper() {
        ws = std::move(workspace_);
        frmMain = std::move(main_);
        frmPaper = std::move(paper_);
    }

private:
    Workspace workspace_;
    MainWindow main_;
    PaperWindow paper_;
};

}  // namespace ordwise
