using System.Runtime.CompilerServices;
using Korvan.CAD.Binding;

namespace Korvan.CAD;

/// <summary>Horizontal and vertical resolution in pixels per inch.</summary>
public class ResolutionSetting
{
    private double _horizontal = 96;
    private double _vertical = 96;

    /// <summary>Creates a resolution of 96 pixels per inch both ways.</summary>
    public ResolutionSetting()
    {
    }

    /// <summary>Creates a resolution.</summary>
    /// <param name="horizontalResolution">Pixels per inch along X, above 0.</param>
    /// <param name="verticalResolution">Pixels per inch along Y, above 0.</param>
    public ResolutionSetting(double horizontalResolution, double verticalResolution)
    {
        HorizontalResolution = horizontalResolution;
        VerticalResolution = verticalResolution;
    }

    /// <summary>Gets or sets the pixels per inch along X, above 0.</summary>
    public double HorizontalResolution
    {
        get => _horizontal;
        set => _horizontal = Verified(value);
    }

    /// <summary>Gets or sets the pixels per inch along Y, above 0.</summary>
    public double VerticalResolution
    {
        get => _vertical;
        set => _vertical = Verified(value);
    }

    private static double Verified(double value, [CallerMemberName] string member = "")
    {
        if (!double.IsFinite(value) || value <= 0)
        {
            throw Verify.OutOfRange(member, value, "A resolution is a finite number above 0.");
        }

        return value;
    }
}
