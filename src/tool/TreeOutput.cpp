#include "tool/TreeOutput.h"

#include "dicom_core/opening/ZELDcmTree.h"
#include "dicom_core/tree/dk_ImageFile.h"
#include "dicom_core/values/ParserText.h"
#include "dicom_core/values/TrimText.h"
#include "tool/CommandLine.h"
#include "tool/JsonText.h"
#include "util/Log.h"

namespace {

// All children, each as what its level makes it.
template <typename Child, typename Call>
void ForChildren(const dk_DicomBaseElem& parent, Call call)
{
    for (dk_DicomBaseElem* child = parent.GetFirstChild(); child; child = child->GetNext())
        call(static_cast<Child&>(*child));
}

// "CT" of the code of two blanks, C and T.
std::string ModalityText(ModalityType modality)
{
    std::string text;
    for (int shift = 24; shift >= 0; shift -= 8)
        if (const char letter = static_cast<char>(modality >> shift & 0xFF); letter != ' ')
            text += letter;
    return text;
}

std::string Line(int level, const QString& title)
{
    return std::string(static_cast<std::size_t>(level) * 2, ' ') +
           EscapedText(title.toStdString()) + '\n';
}

std::string PathOf(dk_ImageFile& file)
{
    if (file.GetSource())
        return file.GetSource()->GetDataPath();
    return file.fFileSpec.fPath;
}

std::string InstanceUIDOf(dk_ImageFile& file)
{
    if (const DicomImageFileRec* record = file.GetParserInfoData())
        return record->recSOPInstanceUID.Str();
    std::string uid;
    const zelParserVisit visit(file.GetSource());
    if (visit.Parser() && Parser_GetElementValueInCString(visit.Parser(), QvxElementRef::None,
                                                          0x0008, 0x0018, 1, 128, &uid))
        uid.clear();
    return uid;
}

class JsonTree {
public:
    explicit JsonTree(const ZELDcmTree& tree) : fTree(tree) {}
    void Say()
    {
        fOut.BeginObject().Key("patients").BeginArray();
        ForChildren<dk_Patient>(*fTree.patientTreeRoot(), [&](dk_Patient& p) { SayPatient(p); });
        fOut.EndArray().Key("left_out").BeginArray();
        for (const LeftOutFile& file : fTree.leftOut())
            fOut.BeginObject()
                .Key("path")
                .Text(file.path)
                .Key("reason")
                .Text(file.reason)
                .EndObject();
        fOut.EndArray().EndObject();
        fOut.Flush();
        ::Say("\n");
    }

private:
    void SayPatient(dk_Patient& patient)
    {
        const std::string title = patient.CopyDKTitle().toStdString();  // reads the name, too
        fOut.BeginObject();
        std::string name = patient.fWidePatientName ? patient.fWidePatientName->toStdString()
                                                    : patient.fPatientName.Str();
        TrimTrailingSpaces(&name);
        fOut.Key("name").Text(name);
        fOut.Key("id").Text(patient.fPatientID.View());
        fOut.Key("sex").Text(patient.fPatientSex.View());
        fOut.Key("title").Text(title).Key("studies").BeginArray();
        ForChildren<dk_Study>(patient, [&](dk_Study& study) { SayStudy(study); });
        fOut.EndArray().EndObject();
    }
    void SayStudy(dk_Study& study)
    {
        const std::string title = study.CopyDKTitle().toStdString();
        fOut.BeginObject().Key("uid").Text(study.fStudyUID.View());
        fOut.Key("date").Text(study.fStudyDate.View());
        fOut.Key("title").Text(title).Key("series").BeginArray();
        ForChildren<dk_Series>(study, [&](dk_Series& series) { SaySeries(series); });
        fOut.EndArray().EndObject();
    }
    void SaySeries(dk_Series& series)
    {
        const std::string title = series.CopyDKTitle().toStdString();
        fOut.BeginObject().Key("uid").Text(series.fSeriesUID.View());
        fOut.Key("number").Number(series.fSeriesNumber);
        fOut.Key("modality").Text(series.fModalityStr.View());
        fOut.Key("title").Text(title).Key("sequences").BeginArray();
        ForChildren<dk_Sequence>(series, [&](dk_Sequence& sequence) { SaySequence(sequence); });
        fOut.EndArray().EndObject();
    }
    void SaySequence(dk_Sequence& sequence)
    {
        fOut.BeginObject().Key("title").Text(sequence.CopyDKTitle().toStdString());
        fOut.Key("modality").Text(ModalityText(sequence.GetModality()));
        fOut.Key("frames").Number(sequence.GetNumberOfFrames());
        fOut.Key("duration_ms").Real(sequence.GetTotalSequenceDuration());
        fOut.Key("localizer").Bool(sequence.IsExtracted()).Key("files").BeginArray();
        ForChildren<dk_ImageFile>(sequence, [&](dk_ImageFile& file) { SayFile(file); });
        fOut.EndArray().EndObject();
    }
    void SayFile(dk_ImageFile& file)
    {
        fOut.BeginObject().Key("path").Text(PathOf(file));
        fOut.Key("sop_instance_uid").Text(InstanceUIDOf(file));
        fOut.Key("instance").Number(file.GetInstanceNumber());
        fOut.Key("frames").Number(file.GetNumberOfFrames()).EndObject();
    }

    const ZELDcmTree& fTree;
    JsonWriter fOut;
};

}  // namespace

void SayTree(const ZELDcmTree& tree)
{
    ForChildren<dk_Patient>(*tree.patientTreeRoot(), [](dk_Patient& patient) {
        Say(Line(0, patient.CopyDKTitle()));
        ForChildren<dk_Study>(patient, [](dk_Study& study) {
            Say(Line(1, study.CopyDKTitle()));
            ForChildren<dk_Series>(study, [](dk_Series& series) {
                Say(Line(2, series.CopyDKTitle()));
                ForChildren<dk_Sequence>(
                    series, [](dk_Sequence& sequence) { Say(Line(3, sequence.CopyDKTitle())); });
            });
        });
    });
    for (const LeftOutFile& file : tree.leftOut())
        Say("left out: " + EscapedText(file.path) + ": " + EscapedText(file.reason) + '\n');
}

void SayTreeAsJson(const ZELDcmTree& tree) { JsonTree(tree).Say(); }
