// A module for clang-tidy that keeps its checks to the code that is judged: declarations of the house, not
// those of the standard library, Qt and GoogleTest, of which a source includes a hundred thousand lines. What
// is found there is never shown, yet looking for it took three quarters of the time. The checks do see
// foreign declarations that our own refer to; they do not go through them. clang-tidy's analyzer follows
// paths through the main file alone anyway.

#include <clang-tidy/ClangTidyCheck.h>
#include <clang-tidy/ClangTidyModule.h>
#include <clang-tidy/ClangTidyModuleRegistry.h>
#include <clang/AST/ASTContext.h>
#include <clang/ASTMatchers/ASTMatchFinder.h>
#include <vector>

namespace {

/// Not a check: as the first thing of a translation unit it limits what all checks are led through.
class OwnCode : public clang::tidy::ClangTidyCheck {
 public:
  using ClangTidyCheck::ClangTidyCheck;

  void registerMatchers(clang::ast_matchers::MatchFinder* finder) override {
    finder->addMatcher(clang::ast_matchers::translationUnitDecl().bind("unit"), this);
  }

  void check(const clang::ast_matchers::MatchFinder::MatchResult& result) override {
    std::vector<clang::Decl*> own;
    for (clang::Decl* declaration : result.Nodes.getNodeAs<clang::TranslationUnitDecl>("unit")->decls())
      if (!result.SourceManager->isInSystemHeader(declaration->getLocation())) own.push_back(declaration);
    result.Context->setTraversalScope(own);
  }
};

class House : public clang::tidy::ClangTidyModule {
  void addCheckFactories(clang::tidy::ClangTidyCheckFactories& factories) override {
    factories.registerCheck<OwnCode>("house-own-code");
  }
};

const clang::tidy::ClangTidyModuleRegistry::Add<House> kHouse("house", "What this house adds to clang-tidy");

}  // namespace
