using System;
using Korvan.CAD.FileFormats.Cad.CadConsts;

namespace Korvan.CAD.FileFormats.Cad.CadParameters;

/// <summary>A field of an object that is an integer of 16 bits.</summary>
public sealed class CadShortParameter : CadParameter
{
    internal CadShortParameter(int attribute, string subclass, short value)
        : base(attribute, subclass)
    {
        Value = value;
    }

    /// <inheritdoc/>
    public override CadParameterType Type => CadParameterType.Short;

    /// <summary>Gets the value.</summary>
    public short Value { get; }

    /// <inheritdoc/>
    public override string ToString() => FormattableString.Invariant($"{Attribute}: {Value}");
}
