#include "CDataExchange.h"

#include "CWnd.h"

CDataExchange::CDataExchange(CWnd* dlgWnd, BOOL saveAndValidate)
    : m_bSaveAndValidate(saveAndValidate), m_pDlgWnd(dlgWnd) {}

HWND CDataExchange::PrepareCtrl(int id) {
    HWND control = m_pDlgWnd != nullptr ? ::GetDlgItem(m_pDlgWnd->m_hWnd, id) : nullptr;
    if (control == nullptr) Fail();
    return control;
}

void DDX_Control(CDataExchange* dx, int id, CWnd& control) {
    if (control.m_hWnd != nullptr) return;
    HWND hwnd = dx->PrepareCtrl(id);
    if (hwnd != nullptr && !control.SubclassWindow(hwnd)) dx->Fail();
}
