using Korvan.CAD.FileFormats.Cad.CadConsts;

namespace Korvan.CAD.FileFormats.Cad.CadParameters;

/// <summary>A field of an object that is bytes.</summary>
public sealed class CadBinaryParameter : CadParameter
{
    internal CadBinaryParameter(int attribute, string subclass, byte[] value)
        : base(attribute, subclass)
    {
        Value = value;
    }

    /// <inheritdoc/>
    public override CadParameterType Type => CadParameterType.Binary;

    /// <summary>Gets the value.</summary>
    public byte[] Value { get; }

    /// <inheritdoc/>
    public override string ToString() => $"{Attribute}: {Value.Length} bytes";
}
