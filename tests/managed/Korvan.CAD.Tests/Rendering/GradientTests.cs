using System;
using System.Linq;
using Korvan.CAD.DisplayList;
using Korvan.CAD.FileFormats.Cad;
using Korvan.CAD.FileFormats.Cad.CadObjects.Hatch;
using Korvan.CAD.Geometry;
using Korvan.CAD.Rendering.Hatch;
using Korvan.CAD.Rendering.Scene;
using Xunit;

namespace Korvan.CAD.Tests.Rendering;

/// <summary>Gradients of hatches: the colour at a place of the area, whatever the device.</summary>
public class GradientTests
{
    private static readonly Rgba Red = new(255, 0, 0);
    private static readonly Rgba Blue = new(0, 0, 255);
    private static readonly Bounds2 Area = Bounds2.Of(10, 20, 50, 40);

    /// <summary>The name, the angle, whether centred, a place by its shares of the area, and the share of the second
    /// colour there.</summary>
    public static readonly TheoryData<string, double, bool, double, double, double> Places = new()
    {
        { "LINEAR", 0, true, 0, 0.5, 0 },
        { "LINEAR", 0, true, 0.25, 0.9, 0.25 },
        { "LINEAR", 0, true, 1, 0.5, 1 },
        { "LINEAR", 0, false, 0.25, 0.5, 0.5 }, // the second colour begins at the middle
        { "LINEAR", 0, false, 0.75, 0.5, 1 },
        { "LINEAR", Math.PI / 2, true, 0.1, 0, 0 }, // upwards
        { "LINEAR", Math.PI / 2, true, 0.9, 1, 1 },
        { "LINEAR", Math.PI, true, 0, 0.5, 1 },
        { "INVLINEAR", 0, true, 0, 0.5, 1 },
        { "CYLINDER", 0, true, 0, 0.5, 0 },
        { "CYLINDER", 0, true, 0.5, 0.5, 1 },
        { "CYLINDER", 0, true, 1, 0.5, 0 },
        { "CYLINDER", 0, false, 0.25, 0.5, 1 },
        { "INVCYLINDER", 0, true, 0.5, 0.5, 0 },
        { "CURVED", 0, true, 0, 0.5, 0 },
        { "CURVED", 0, true, 0.5, 0.5, Math.Sqrt(0.5) }, // a quarter of a sine
        { "CURVED", 0, true, 1, 0.5, 1 },
        { "SPHERICAL", 0, true, 0.5, 0.5, 1 },
        { "SPHERICAL", 0, true, 0, 0, 0 }, // the corners are on the circle
        { "INVSPHERICAL", 0, true, 0.5, 0.5, 0 },
        { "HEMISPHERICAL", 0, true, 0.5, 0, 1 }, // the centre lies on the lower edge
        { "invhemispherical", 0, true, 0.5, 0, 0 },
        { "unheard of", 0, true, 0, 0.5, 0 }, // as LINEAR
    };

    [Theory]
    [MemberData(nameof(Places))]
    public void Gradients_mix_their_colours_by_place(
        string name, double angle, bool centred, double x, double y, double second)
    {
        Gradient gradient = HatchGradient.Create(name, angle, centred, Red, Blue, Area);
        Vec2 at = new(Area.MinX + (x * Area.Width), Area.MinY + (y * Area.Height));
        Rgba color = ColorAt(gradient, at);
        Assert.Equal(255 * second, color.B, 4.0);
        Assert.Equal(255 * (1 - second), color.R, 4.0);
        Assert.Equal(255, color.A);
    }

    [Theory]
    [InlineData(0, 0, 0, 0)]
    [InlineData(0.25, 100, 50, 20)] // half of the way from black
    [InlineData(0.5, 200, 100, 40)]
    [InlineData(0.75, 228, 178, 148)] // half of the way to white
    [InlineData(1, 255, 255, 255)]
    [InlineData(7, 255, 255, 255)] // beyond the range
    public void The_second_of_one_colour_is_its_tint(double tint, int red, int green, int blue)
    {
        CadHatch hatch = Hatch(0xC86428);
        (hatch.SingleColorGradient, hatch.GradientTint, hatch.Transparency) = (1, tint, 0x02000080);
        GradientStop[] stops = GradientOf(hatch).Stops;
        Assert.Equal(new Rgba(200, 100, 40, 128), stops[0].Color);
        Assert.Equal(new Rgba((byte)red, (byte)green, (byte)blue, 128), stops[^1].Color);
    }

    [Fact]
    public void A_gradient_in_a_drawing_follows_its_angle_shift_and_plane()
    {
        CadHatch hatch = Hatch(0xFF0000, 0x0000FF);
        (hatch.GradientAngle, hatch.GradientShift) = (0, 1);
        Assert.Equal(0.5, GradientOf(hatch).Stops[1].Offset); // a shift of 1 is not centred
        hatch.GradientShift = 0;
        hatch.ExtrusionDirection = new(0, 0, -1);
        Gradient mirrored = GradientOf(hatch);
        Assert.Equal(Red, ColorAt(mirrored, new Vec2(0, 5)));
        Assert.Equal(Blue, ColorAt(mirrored, new Vec2(-10, 5)));
        CadImage drawing = TestPage.Drawing(hatch);
        DrawingList list = SceneList.Build(drawing, new RenderStyle { SingleColor = Blue });
        Assert.Equal((-1, Blue), (list.Items[0].Extra, list.Items[0].Color)); // one colour for all
    }

    private static CadHatch Hatch(params int[] colors)
    {
        var outline = new CadPolylineBoundaryPath();
        outline.Vertices.AddRange([new(0, 0), new(10, 0), new(10, 10), new(0, 10)]);
        var hatch = new CadHatch { IsGradient = 1, GradientName = "LINEAR" };
        hatch.BoundaryPaths.Add(new CadHatchBoundaryPathContainer(outline));
        hatch.GradientColors.AddRange(colors);
        return hatch;
    }

    private static Gradient GradientOf(CadHatch hatch)
    {
        DrawingList list = SceneList.Build(hatch);
        return list.GradientOf(list.Items[0]);
    }

    /// <summary>The colour by definition: the place in the gradient's own space, then between its stops.</summary>
    private static Rgba ColorAt(Gradient gradient, Vec2 at)
    {
        Assert.True(gradient.Matrix.TryInvert(out Affine2 inverse));
        Vec2 own = inverse.Point(at);
        double t = gradient.Radial ? own.Length : (own.X + 1) / 2;
        GradientStop[] stops = gradient.Stops;
        Assert.Equal(stops.Select(stop => stop.Offset).Order(), stops.Select(stop => stop.Offset));
        int next = Math.Clamp(Array.FindIndex(stops, stop => stop.Offset >= t), 0, stops.Length - 1);
        next = t > stops[^1].Offset ? stops.Length - 1 : next;
        GradientStop from = stops[Math.Max(0, next - 1)];
        double width = stops[next].Offset - from.Offset;
        return HatchGradient.Mix(from.Color, stops[next].Color, width > 0 ? (t - from.Offset) / width : 1);
    }
}
