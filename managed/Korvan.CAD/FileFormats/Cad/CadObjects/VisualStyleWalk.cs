using System.Collections.Generic;
using Korvan.CAD.FileFormats.Cad.Exchange;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>Carries the values of a visual style: each has a group code of its own, or that of its type, and a flag
/// after it in later releases.</summary>
/// <param name="fields">What carries them.</param>
/// <param name="form">The form of the fields.</param>
/// <param name="sources">The flags.</param>
internal sealed class VisualStyleWalk(ObjectExchange fields, short form, List<int> sources)
{
    /// <summary>The form in which group codes state types.</summary>
    internal const short TypedForm = 3;

    private const int PlainColor = 62;
    private const int TrueColor = 420;
    private const int Source = 176;

    // Files of release 2010 have a reserved colour before that of faces.
    private const int FaceColor = 63;

    private int _index;

    internal int Integer(int code, int value)
    {
        int result = fields.Int32(form == TypedForm ? 90 : code, value);
        Next();
        return result;
    }

    internal double Number(int code, double value)
    {
        double result = fields.Double(form == TypedForm ? 40 : code, value);
        Next();
        return result;
    }

    internal bool Boolean(int code, bool value)
    {
        bool result = fields.Bool(form == TypedForm ? 290 : code, value);
        Next();
        return result;
    }

    internal (short Index, int Value) Color(int code, int trueCode, short index, int value)
    {
        const int reserved = 5;
        if (code == FaceColor && form != TypedForm && fields.Has(PlainColor, 0, form == 0))
        {
            fields.Int32(PlainColor, reserved);
        }

        index = fields.Color(form == TypedForm ? PlainColor : code, index);
        int codeOfValue = form == TypedForm ? TrueColor : trueCode;
        if (fields.Has(codeOfValue, 2004, value != -1))
        {
            value = fields.Int32(codeOfValue, value);
        }

        Next();
        return (index, value);
    }

    private void Next()
    {
        if (form == 0)
        {
            return;
        }

        int source = fields.Int32(Source, _index < sources.Count ? sources[_index] : 1);
        if (fields.IsReading)
        {
            sources.Add(source);
        }

        _index++;
    }
}
