using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>The type of virtual device coordinates.</summary>
[CgmCommand(MetaFileDescriptorElement.VdcType, "VDCTYPE", Default = "the default type, integers")]
public sealed partial class VdcType : Command
{
    /// <summary>The types of coordinates.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Type
    {
        /// <summary>Integers.</summary>
        [CgmKeyword("INTEGER")] Integer = 0,

        /// <summary>Real numbers.</summary>
        [CgmKeyword("REAL")] Real = 1,
    }

    /// <summary>Gets or sets the type.</summary>
    [CgmEnum]
    public Type Value { get; set; } = Type.Integer;

    internal override void Apply(CodingState state) => state.VdcType = Value;
}

/// <summary>The precision of integers.</summary>
[CgmCommand(MetaFileDescriptorElement.IntegerPrecision, "INTEGERPREC")]
public sealed partial class IntegerPrecision : Command
{
    /// <summary>Gets or sets the bits of an integer in a binary file: 8, 16, 24 or 32.</summary>
    [CgmSignedBits(8, 16, 24, 32)]
    public int Precision { get; set; } = 16;

    internal override void Apply(CodingState state) => state.IntegerBits = Precision;
}

/// <summary>The precision of real numbers in binary files; clear text states their range and digits.</summary>
[CgmCommand]
public abstract partial class RealPrecisionBase : Command
{
    /// <summary>Gets or sets the form and width of numbers.</summary>
    [CgmRealForm]
    public Precision Value { get; set; }
}

/// <summary>The precision of real numbers other than coordinates.</summary>
[CgmCommand(MetaFileDescriptorElement.RealPrecision, "REALPREC", Default = "the default precision, 32-bit fixed point")]
public sealed partial class RealPrecision : RealPrecisionBase
{
    internal override void Apply(CodingState state) => state.Real = Value;
}

/// <summary>The precision of indexes.</summary>
[CgmCommand(MetaFileDescriptorElement.IndexPrecision, "INDEXPREC")]
public sealed partial class IndexPrecision : Command
{
    /// <summary>Gets or sets the bits of an index in a binary file: 8, 16, 24 or 32.</summary>
    [CgmSignedBits(8, 16, 24, 32)]
    public int Precision { get; set; } = 16;

    internal override void Apply(CodingState state) => state.IndexBits = Precision;
}

/// <summary>The precision of names, which are integers.</summary>
[CgmCommand(MetaFileDescriptorElement.NamePrecision, "NAMEPREC")]
public sealed partial class NamePrecision : Command
{
    /// <summary>Gets or sets the bits of a name in a binary file: 8, 16, 24 or 32.</summary>
    [CgmSignedBits(8, 16, 24, 32)]
    public int Precision { get; set; } = 16;

    internal override void Apply(CodingState state) => state.NameBits = Precision;
}

/// <summary>The precision of the components of direct colours.</summary>
[CgmCommand(MetaFileDescriptorElement.ColourPrecision, "COLRPREC")]
public sealed partial class ColourPrecision : Command
{
    /// <summary>Gets or sets the bits of a colour component in a binary file: 8, 16, 24 or 32.</summary>
    [CgmUnsignedBits(8, 16, 24, 32)]
    public int Precision { get; set; } = 8;

    internal override void Apply(CodingState state) => state.ColorBits = Precision;
}

/// <summary>The precision of colour indexes.</summary>
[CgmCommand(MetaFileDescriptorElement.ColourIndexPrecision, "COLRINDEXPREC")]
public sealed partial class ColourIndexPrecision : Command
{
    /// <summary>Gets or sets the bits of a colour index in a binary file: 8, 16, 24 or 32.</summary>
    [CgmUnsignedBits(8, 16, 24, 32)]
    public int Precision { get; set; } = 8;

    internal override void Apply(CodingState state) => state.ColorIndexBits = Precision;
}

/// <summary>The precision of integer coordinates.</summary>
[CgmCommand(ControlElement.VdcIntegerPrecision, "VDCINTEGERPREC")]
public sealed partial class VdcIntegerPrecision : Command
{
    /// <summary>Gets or sets the bits of a coordinate in a binary file: 16, 24 or 32.</summary>
    [CgmSignedBits(16, 24, 32)]
    public int Precision { get; set; } = 16;

    internal override void Apply(CodingState state) => state.Current.VdcIntegerBits = Precision;
}

/// <summary>The precision of real coordinates.</summary>
[CgmCommand(ControlElement.VdcRealPrecision, "VDCREALPREC", Default = "the default precision, 32-bit fixed point")]
public sealed partial class VdcRealPrecision : RealPrecisionBase
{
    internal override void Apply(CodingState state) => state.Current.VdcReal = Value;
}
