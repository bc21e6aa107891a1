using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>Carries the values of a visual style after their group codes.</summary>
/// <param name="fields">What carries them.</param>
/// <param name="form">The form of the fields.</param>
/// <param name="sources">The flags.</param>
internal sealed class VisualStyleTags(ObjectExchange fields, short form, List<int> sources)
    : VisualStyleWalk(fields.IsReading, form, sources)
{
    private const int PlainColor = 62;
    private const int TrueColor = 420;
    private const int Source = 176;

    // Files of release 2010 have a reserved colour before that of faces.
    private const int FaceColor = 63;

    private bool IsTyped { get; } = form == TypedForm;

    private bool IsPlain { get; } = form == 0;

    private protected override int CarryInteger(int code, int value) => fields.Int32(IsTyped ? 90 : code, value);

    private protected override double CarryNumber(int code, double value) => fields.Double(IsTyped ? 40 : code, value);

    private protected override bool CarryBoolean(int code, bool value) => fields.Bool(IsTyped ? 290 : code, value);

    private protected override (short Index, int Value) CarryColor(int code, int trueCode, short index, int value)
    {
        const int reserved = 5;
        if (code == FaceColor && !IsTyped && fields.Has(PlainColor, 0, IsPlain))
        {
            fields.Int32(PlainColor, reserved);
        }

        index = fields.Color(IsTyped ? PlainColor : code, index);
        int codeOfValue = IsTyped ? TrueColor : trueCode;
        return (index, fields.Has(codeOfValue, 2004, value != -1) ? fields.Int32(codeOfValue, value) : value);
    }

    private protected override int CarrySource(int value) => fields.Int32(Source, value);
}
