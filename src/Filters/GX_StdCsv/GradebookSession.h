// Writes gradebook files: a header, then one row per student of the class with one cell per selected
// assignment. What they look like is a layout's business.
#ifndef GRADIX_GRADEBOOKSESSION_H
#define GRADIX_GRADEBOOKSESSION_H

#include "Filters/GX_StdCsv/GradebookLayout.h"
#include "Filters/GX_StdCsv/Session.h"

class GradebookSession : public Session {
 public:
  using Session::Session;

 private:
  void Write(std::FILE* file) final;
  virtual const GradebookLayout& Layout() const = 0;
};

// The session of one layout.
template <const GradebookLayout& kLayout>
class LayoutSession : public GradebookSession {
 public:
  using GradebookSession::GradebookSession;

 private:
  const GradebookLayout& Layout() const final { return kLayout; }
};

#endif  // GRADIX_GRADEBOOKSESSION_H
