using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Whether coordinates are whole numbers or real ones.</summary>
public sealed class VdcType : Command
{
    private static readonly string[] Words = ["INTEGER", "REAL"];

    /// <summary>Creates the element with its default, whole numbers.</summary>
    public VdcType()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.VdcType)
    {
    }

    /// <summary>The kinds of coordinates.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>Whole numbers.</summary>
        Integer = 0,

        /// <summary>Real numbers.</summary>
        Real = 1,
    }

    /// <summary>Gets or sets the kind.</summary>
    public Type Value { get; set; } = Type.Integer;

    internal override void Exchange(ParameterExchange x) => Value = x.Enumeration(Value, Words);

    internal override void Apply(CodingState state) => state.VdcType = Value;
}
