#include "demo_host/filters/filter_base.h"

namespace {

class CMazeFilter : public CAreaEdgesFilter<IEffectMaze, IID_IEffectMaze, EffectId::Maze> {
public:
    using CAreaEdgesFilter::CAreaEdgesFilter;
    STDMETHODIMP put_Divisions(LONG divisions) override { return Put(__func__, m_divisions, divisions); }
    STDMETHODIMP put_BreakKind(LONG kind) override { return Put(__func__, m_breakKind, kind); }

private:
    std::int32_t m_divisions = 0;
    std::int32_t m_breakKind = 0;
};

}  // namespace

IDemoFilter* MakeMazeFilter(TraceSink trace) { return new CMazeFilter(std::move(trace)); }
