using System;
using Korvan.CAD.FileFormats.Cad.CadConsts;

namespace Korvan.CAD.FileFormats.Cad.CadParameters;

/// <summary>A field of an object that is an integer of 64 bits.</summary>
public sealed class CadLongParameter : CadParameter
{
    internal CadLongParameter(int attribute, string subclass, long value)
        : base(attribute, subclass)
    {
        Value = value;
    }

    /// <inheritdoc/>
    public override CadParameterType Type => CadParameterType.Long;

    /// <summary>Gets the value.</summary>
    public long Value { get; }

    /// <inheritdoc/>
    public override string ToString() => FormattableString.Invariant($"{Attribute}: {Value}");
}
