using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Elements;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>What the components of direct colours stand for.</summary>
public sealed class ColourModel : Command
{
    /// <summary>Creates the element with its default, RGB.</summary>
    public ColourModel()
        : base(ClassCode.MetaFileDescriptorElement, (int)MetaFileDescriptorElement.ColourModel)
    {
    }

    /// <summary>The models of colours; numbers above 5 are kept for the register of graphical items.</summary>
    [PythonEnum(EnumKind.Integer)]
    public enum Model
    {
        /// <summary>Red, green and blue.</summary>
        Rgb = 1,

        /// <summary>CIE L*a*b*.</summary>
        CieLab = 2,

        /// <summary>CIE L*u*v*.</summary>
        CieLuv = 3,

        /// <summary>Cyan, magenta, yellow and black.</summary>
        Cmyk = 4,

        /// <summary>Red, green and blue of a calibrated device.</summary>
        RgbRelated = 5,
    }

    /// <summary>Gets or sets the model.</summary>
    public Model Value { get; set; } = Model.Rgb;

    internal override void Exchange(ParameterExchange x)
    {
        Value = x.Index(Value);
        if (!System.Enum.IsDefined(Value))
        {
            throw new CgmDataException($"there is no colour model {(int)Value}");
        }
    }

    internal override void Apply(CodingState state) => state.ColorModel = Value;
}
