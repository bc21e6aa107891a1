using Korvan.CAD.FileFormats.Cgm.Coding;
using Korvan.CAD.FileFormats.Cgm.Enums;

namespace Korvan.CAD.FileFormats.Cgm.Commands;

/// <summary>How real numbers are coded in binary files; clear text tells their range and digits.</summary>
public abstract class RealPrecisionBase : Command
{
    private protected RealPrecisionBase(ClassCode elementClass, int elementId)
        : base(elementClass, elementId)
    {
    }

    /// <summary>Gets or sets the form and width of numbers.</summary>
    public Precision Value { get; set; }

    internal override void Exchange(ParameterExchange x)
    {
        if (!System.Enum.IsDefined(Value))
        {
            throw new CgmDataException($"there is no precision {(int)Value} of real numbers");
        }

        Value = x.RealForm(Value);
    }
}
