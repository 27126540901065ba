// The page that shows what each hint means, with an example of each.
#pragma once

class QTextBrowser;

namespace tessel {

void FillTechniquesPage(QTextBrowser& page);

}  // namespace tessel
