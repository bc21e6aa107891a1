using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>Whether coordinates are whole numbers or real ones.</summary>
[CgmCommand(MetaFileDescriptorElement.VdcType, "VDCTYPE",
    Default = "the element with its default, whole numbers")]
public sealed partial class VdcType : Command
{
    /// <summary>The kinds of coordinates.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>Whole numbers.</summary>
        [CgmKeyword("INTEGER")]
        Integer = 0,

        /// <summary>Real numbers.</summary>
        [CgmKeyword("REAL")]
        Real = 1,
    }

    /// <summary>Gets or sets the kind.</summary>
    [CgmEnum]
    public Type Value { get; set; } = Type.Integer;

    internal override void Apply(CodingState state) => state.VdcType = Value;
}

/// <summary>The width of whole numbers.</summary>
[CgmCommand(MetaFileDescriptorElement.IntegerPrecision, "INTEGERPREC")]
public sealed partial class IntegerPrecision : Command
{
    /// <summary>Gets or sets how many bits a whole number has in a binary file: 8, 16, 24 or 32.</summary>
    [CgmSignedBits(8, 16, 24, 32)]
    public int Precision { get; set; } = 16;

    internal override void Apply(CodingState state) => state.IntegerBits = Precision;
}

/// <summary>How real numbers are coded in binary files; clear text tells their range and digits.</summary>
[CgmCommand]
public abstract partial class RealPrecisionBase : Command
{
    /// <summary>Gets or sets the form and width of numbers.</summary>
    [CgmRealForm]
    public Precision Value { get; set; }
}

/// <summary>How real numbers are coded, other than coordinates.</summary>
[CgmCommand(MetaFileDescriptorElement.RealPrecision, "REALPREC",
    Default = "the element with its default, a fixed point and 32 bits")]
public sealed partial class RealPrecision : RealPrecisionBase
{
    internal override void Apply(CodingState state) => state.Real = Value;
}

/// <summary>The width of indices.</summary>
[CgmCommand(MetaFileDescriptorElement.IndexPrecision, "INDEXPREC")]
public sealed partial class IndexPrecision : Command
{
    /// <summary>Gets or sets how many bits an index has in a binary file: 8, 16, 24 or 32.</summary>
    [CgmSignedBits(8, 16, 24, 32)]
    public int Precision { get; set; } = 16;

    internal override void Apply(CodingState state) => state.IndexBits = Precision;
}

/// <summary>The width of names, which are numbers.</summary>
[CgmCommand(MetaFileDescriptorElement.NamePrecision, "NAMEPREC")]
public sealed partial class NamePrecision : Command
{
    /// <summary>Gets or sets how many bits a name has in a binary file: 8, 16, 24 or 32.</summary>
    [CgmSignedBits(8, 16, 24, 32)]
    public int Precision { get; set; } = 16;

    internal override void Apply(CodingState state) => state.NameBits = Precision;
}

/// <summary>The width of the components of direct colours.</summary>
[CgmCommand(MetaFileDescriptorElement.ColourPrecision, "COLRPREC")]
public sealed partial class ColourPrecision : Command
{
    /// <summary>Gets or sets how many bits a component has in a binary file: 8, 16, 24 or 32.</summary>
    [CgmUnsignedBits(8, 16, 24, 32)]
    public int Precision { get; set; } = 8;

    internal override void Apply(CodingState state) => state.ColorBits = Precision;
}

/// <summary>The width of the numbers of colours.</summary>
[CgmCommand(MetaFileDescriptorElement.ColourIndexPrecision, "COLRINDEXPREC")]
public sealed partial class ColourIndexPrecision : Command
{
    /// <summary>Gets or sets how many bits the number of a colour has in a binary file: 8, 16, 24 or 32.</summary>
    [CgmUnsignedBits(8, 16, 24, 32)]
    public int Precision { get; set; } = 8;

    internal override void Apply(CodingState state) => state.ColorIndexBits = Precision;
}

/// <summary>The width of coordinates that are whole numbers.</summary>
[CgmCommand(ControlElement.VdcIntegerPrecision, "VDCINTEGERPREC")]
public sealed partial class VdcIntegerPrecision : Command
{
    /// <summary>Gets or sets how many bits a coordinate has in a binary file: 16, 24 or 32.</summary>
    [CgmSignedBits(16, 24, 32)]
    public int Precision { get; set; } = 16;

    internal override void Apply(CodingState state) => state.Current.VdcIntegerBits = Precision;
}

/// <summary>How coordinates are coded that are real numbers.</summary>
[CgmCommand(ControlElement.VdcRealPrecision, "VDCREALPREC",
    Default = "the element with its default, a fixed point and 32 bits")]
public sealed partial class VdcRealPrecision : RealPrecisionBase
{
    internal override void Apply(CodingState state) => state.Current.VdcReal = Value;
}
