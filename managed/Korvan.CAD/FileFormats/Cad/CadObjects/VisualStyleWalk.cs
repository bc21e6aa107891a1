using System.Collections.Generic;

namespace Korvan.CAD.FileFormats.Cad.CadObjects;

/// <summary>Carries the values of a visual style: each has a group code of its own, or that of its type, and a flag
/// after it in later releases.</summary>
/// <param name="isReading">Whether the style takes values over.</param>
/// <param name="form">The form of the fields.</param>
/// <param name="sources">The flags.</param>
internal abstract class VisualStyleWalk(bool isReading, short form, List<int> sources)
{
    /// <summary>The form of release 2010, with a flag after each value.</summary>
    internal const short FlaggedForm = 2;

    /// <summary>The form in which group codes state types.</summary>
    internal const short TypedForm = 3;

    private int _index;

    internal int Integer(int code, int value)
    {
        int result = CarryInteger(code, value);
        Next();
        return result;
    }

    internal double Number(int code, double value)
    {
        double result = CarryNumber(code, value);
        Next();
        return result;
    }

    internal bool Boolean(int code, bool value)
    {
        bool result = CarryBoolean(code, value);
        Next();
        return result;
    }

    internal (short Index, int Value) Color(int code, int trueCode, short index, int value)
    {
        (short Index, int Value) result = CarryColor(code, trueCode, index, value);
        Next();
        return result;
    }

    private protected abstract int CarryInteger(int code, int value);

    private protected abstract double CarryNumber(int code, double value);

    private protected abstract bool CarryBoolean(int code, bool value);

    private protected abstract (short Index, int Value) CarryColor(int code, int trueCode, short index, int value);

    private protected abstract int CarrySource(int value);

    private void Next()
    {
        if (form == 0)
        {
            return;
        }

        int source = CarrySource(_index < sources.Count ? sources[_index] : 1);
        if (isReading)
        {
            sources.Add(source);
        }

        _index++;
    }
}
