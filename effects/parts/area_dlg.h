// A dialog of an effect that can be limited to a rectangle of the video.
#pragma once

#include "effects/parts/area_controls.h"
#include "effects/parts/effect_area.h"
#include "effects/parts/effect_dlg.h"
#include "skin/skin_message_box.h"

/// What a filter with one setter per edge gets for an area that is not valid.
enum class InvalidArea {
    ReplaceThenConvert,  ///< A valid area, converted to frame pixels like any other.
    SendAsIs,            ///< A valid area's numbers as they are, and left first.
};

/// When such a filter gets the area's switch.
enum class AreaSwitch { BeforeEdges, AfterEdges, BeforeValidEdgesOnly };

template <EffectId Id>
class CAreaDlg : public CEffectDlg<Id> {
protected:
    using typename CEffectDlg<Id>::Filter;
    using typename CEffectDlg<Id>::Settings;

    /// The record's area is mended here, before anything is shown. Sliders have the preview panel's usual id.
    CAreaDlg() : CEffectDlg<Id>({.firstSync = FirstSync::BeforeAttach, .previewId = 21, .titleHasSize = true}) {
        StoreEdges(ClampEffectArea(EdgesOf(*this->m_settings), this->m_video));
    }

    bool AddArea(const CAreaControls::Texts& texts = {}) {
        this->Hear(CAreaControls::kSwitchId);
        for (const UINT id : CAreaControls::kEdgeIds) this->Hear(id, EN_CHANGE);
        const Settings& settings = *this->m_settings;
        return m_area.Create(*this, settings.areaEnabled != 0, EdgesOf(settings), texts);
    }

    /// Places the area below the other controls, and the help panel below it.
    void PlaceArea(int y) {
        m_area.Place({20, y}, this->ClientRect().Width() - 40);
        this->m_helpRect = this->HelpRectBelow(y + CAreaControls::kHeight + 10);
    }

    CValueSlider::Places Row(int y) const { return CRecordDlg::Row(y, 155, 180, 50); }

    void SyncControls() override {
        CEffectDlg<Id>::SyncControls();
        m_area.SetEnabled(this->m_enable.IsChecked());
    }

    void OnClicked(UINT id) override {
        // Here the edges follow their own switch alone, on purpose.
        if (id == CAreaControls::kSwitchId) m_area.SetEdgesEnabled(m_area.IsOn());
        CEffectDlg<Id>::OnClicked(id);
    }

    bool Validate() override {
        if (!m_area.IsOn() || IsValid(m_area.Typed())) return true;
        CSkinMessageBox(L"Error!", L"Invalid effect area, please input and try again!").DoModal();
        return false;
    }

    void SaveSettings() override {
        const RECT typed = m_area.Typed();  // Read first, too.
        CEffectDlg<Id>::SaveSettings();
        this->m_settings->areaEnabled = m_area.IsOn();
        StoreEdges(typed);
    }

    void SetDefaults() override {
        CEffectDlg<Id>::SetDefaults();
        SetDefaultArea();
    }
    void SetDefaultArea() { m_area.Set(this->kDefaults.areaEnabled != 0, EdgesOf(this->kDefaults)); }

    /// The area for a filter that takes it as a structure; one that is not valid is replaced, then converted.
    AreaParams AreaStructure() const {
        const RECT typed = m_area.Typed();
        const RECT edges = InFrame(IsValid(typed) ? typed : kValidEffectArea);
        return {edges.left, edges.top, edges.right, edges.bottom, m_area.IsOn(), {0, 0, 1, 1, 0}};
    }

    /// Sends the area to a filter with a setter per edge, whatever its switch says: the filter looks at that.
    void PutArea(InvalidArea invalid, AreaSwitch place) {
        const RECT typed = m_area.Typed();
        const bool valid = IsValid(typed);
        const VARIANT_BOOL on = m_area.IsOn() ? VARIANT_TRUE : VARIANT_FALSE;
        if (place == AreaSwitch::BeforeEdges || (place == AreaSwitch::BeforeValidEdgesOnly && valid)) {
            this->Put(&Filter::put_AreaEnable, on);
        }
        if (valid || invalid == InvalidArea::ReplaceThenConvert) {
            const RECT edges = InFrame(valid ? typed : kValidEffectArea);
            this->Put(&Filter::put_AreaRight, edges.right);
            this->Put(&Filter::put_AreaBottom, edges.bottom);
            this->Put(&Filter::put_AreaLeft, edges.left);
            this->Put(&Filter::put_AreaTop, edges.top);
        } else {
            this->Put(&Filter::put_AreaLeft, kValidEffectArea.left);
            this->Put(&Filter::put_AreaTop, kValidEffectArea.top);
            this->Put(&Filter::put_AreaRight, kValidEffectArea.right);
            this->Put(&Filter::put_AreaBottom, kValidEffectArea.bottom);
        }
        if (place == AreaSwitch::AfterEdges) this->Put(&Filter::put_AreaEnable, on);
    }

    CAreaControls m_area;

private:
    static RECT EdgesOf(const Settings& settings) {
        return {settings.left, settings.top, settings.right, settings.bottom};
    }
    bool IsValid(const RECT& area) const { return ValidateEffectArea(area, this->m_video); }
    RECT InFrame(const RECT& area) const { return ScaleEffectArea(area, this->m_video, this->m_frame); }

    void StoreEdges(const RECT& area) {
        this->m_settings->left = area.left;
        this->m_settings->top = area.top;
        this->m_settings->right = area.right;
        this->m_settings->bottom = area.bottom;
    }
};
