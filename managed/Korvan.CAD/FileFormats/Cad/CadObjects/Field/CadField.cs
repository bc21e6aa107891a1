using System.Collections.Generic;
using Korvan.CAD.Collections;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects.Field;

/// <summary>A field: a string of a drawing that is computed, as a date or an area.</summary>
[CadSequence]
[CadObject("FIELD", Subclass = "AcDbField")]
[CadBits(
    "T Evaluator", "T Code", "H[BL] ChildHandles", "H[BL] ReferencedHandles", "-2004 T Format", "BL EvaluationOption",
    "BL FilingOption", "BL State", "BL EvaluationStatus", "BL EvaluationErrorCode", "T EvaluationErrorMessage",
    "Part Value", "T ValueText", "BL ValueTextLength", "ExchangeData()")]
public partial class CadField : CadObjectBase, ICadObjectContainer
{
    /// <summary>Creates the object with its defaults.</summary>
    public CadField()
    {
    }

    /// <summary>Gets or sets the name of the evaluator. Group code 1.</summary>
    [CadString(1)]
    public string Evaluator { get; set; } = "";

    /// <summary>Gets or sets the code that is evaluated. Group codes 2, 3.</summary>
    public string Code { get; set; } = "";

    /// <summary>Gets or sets the format of drawings before release 2007; empty for none. Group code 4.</summary>
    public string Format { get; set; } = "";

    /// <summary>Gets the handles of the fields within the code, in hexadecimal. The list is live. Group code
    /// 360.</summary>
    public List<string> ChildHandles { get; } = [];

    /// <summary>Gets the handles of the objects that the code refers to, in hexadecimal. The list is live. Group code
    /// 331.</summary>
    public List<string> ReferencedHandles { get; } = [];

    /// <summary>Gets or sets when the field is evaluated: 1 when opened, 2 saved, 4 plotted, 8 sent, 16 regenerated, 32
    /// demanded; added up. Group code 91.</summary>
    public int EvaluationOption { get; set; }

    /// <summary>Gets or sets whether the result is left out of files: 0 no, 1 yes. Group code 92.</summary>
    public int FilingOption { get; set; }

    /// <summary>Gets or sets the state: 1 initialized, 2 compiled, 4 modified, 8 evaluated, 16 cached; added up. Group
    /// code 94.</summary>
    public int State { get; set; }

    /// <summary>Gets or sets the result of the evaluation: 1 none yet, 2 success, 4 no evaluator, 8 a syntax error, 16
    /// an invalid code, 32 an invalid context, 64 another error. Group code 95.</summary>
    public int EvaluationStatus { get; set; }

    /// <summary>Gets or sets the number of the error. Group code 96.</summary>
    public int EvaluationErrorCode { get; set; }

    /// <summary>Gets or sets the message of the error. Group code 300.</summary>
    public string EvaluationErrorMessage { get; set; } = "";

    /// <summary>Gets the data of the field by their names. The list is live. Group code 93.</summary>
    public IList<CadFieldData> Data { get; } = new CheckedList<CadFieldData>("data");

    /// <summary>Gets the value.</summary>
    public CadFieldData Value { get; } = new();

    /// <summary>Gets or sets the string that shows the value. Group codes 301, 9.</summary>
    public string ValueText { get; set; } = "";

    /// <summary>Gets or sets the length of the string that shows the value. Group code 98.</summary>
    public int ValueTextLength { get; set; }

    /// <inheritdoc/>
    public string[] GetObjectHandles() => [.. ChildHandles];

    partial void OnExchange(ObjectExchange fields)
    {
        Code = fields.LongText(3, 2, Code);
        if (fields.Has(4, 0, Format.Length > 0))
        {
            Format = fields.Text(4, Format);
        }

        fields.Handles(360, HandleRole.HardOwner, ChildHandles, fields.Count(90, ChildHandles.Count));
        fields.Handles(331, HandleRole.SoftPointer, ReferencedHandles, fields.Count(97, ReferencedHandles.Count));
        EvaluationOption = fields.Int32(91, EvaluationOption);
        FilingOption = fields.Int32(92, FilingOption);
        State = fields.Int32(94, State);
        EvaluationStatus = fields.Int32(95, EvaluationStatus);
        EvaluationErrorCode = fields.Int32(96, EvaluationErrorCode);
        EvaluationErrorMessage = fields.Text(300, EvaluationErrorMessage);
        fields.Parts(Data, fields.Count(93, Data.Count), static (data, walk) => data.Exchange(walk));
        fields.Brace(7, "ACFD_FIELD_VALUE");
        Value.Exchange(fields);
        ValueText = fields.Text(301, ValueText);
        if (fields.Has(9, 0, false))
        {
            ValueText += fields.LongText(9, 9, "");
        }

        ValueTextLength = fields.Int32(98, ValueTextLength);
    }

    private void ExchangeData(BitExchange fields)
    {
        int count = fields.CountLong(Data.Count);
        for (int i = 0; i < count; i++)
        {
            CadFieldData data = fields.Item(Data, i);
            data.Key = fields.Text(data.Key);
            data.ExchangeBits(fields);
        }
    }
}
