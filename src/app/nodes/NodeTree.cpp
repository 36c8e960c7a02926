#include "app/nodes/NodeTree.h"

#include "dicom_core/tree/dk_PatientListRoot.h"
#include "dicom_core/tree/dk_SequenceBase.h"
#include "dicom_core/tree/dk_Series.h"

namespace {

DicomElemChildNode* Append(DicomElemChildNode* parent, dk_DicomBaseElem* element)
{
    return parent->addChild(std::make_unique<DicomElemChildNode>(element));
}

void AppendStudy(DicomElemChildNode* patient, dk_DicomBaseElem* study)
{
    DicomElemChildNode* node = Append(patient, study);
    for (dk_DicomBaseElem* child = study->GetFirstChild(); child; child = child->GetNext()) {
        auto* series = static_cast<dk_Series*>(child);
        U_LoadSeriesSequences(series->SeriesHas_SingleFileSequences() ? Append(node, series) : node,
                              series);
    }
}

}  // namespace

DicomElemChildNode* U_AppendSequenceNode(DicomElemChildNode* parent, dk_SequenceBase* sequence)
{
    return Append(parent, sequence);
}

void U_LoadSeriesSequences(DicomElemChildNode* parent, dk_Series* series)
{
    for (dk_DicomBaseElem* child = series->GetFirstChild(); child; child = child->GetNext())
        U_AppendSequenceNode(parent, static_cast<dk_SequenceBase*>(child));
}

std::unique_ptr<DicomElemChildNode> U_NodesOfTree(dk_PatientListRoot* root)
{
    auto nodes = std::make_unique<DicomElemChildNode>(root);
    dk_DicomBaseElem* patient = root ? root->GetFirstChild() : nullptr;
    for (; patient; patient = patient->GetNext()) {
        DicomElemChildNode* node = Append(nodes.get(), patient);
        for (dk_DicomBaseElem* study = patient->GetFirstChild(); study; study = study->GetNext())
            AppendStudy(node, study);
    }
    return nodes;
}
