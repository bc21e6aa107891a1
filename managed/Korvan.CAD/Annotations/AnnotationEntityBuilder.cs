using System;
using Korvan.CAD.Binding;
using Korvan.CAD.FileFormats.Cad.CadConsts;
using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Primitives;

namespace Korvan.CAD.Annotations;

/// <summary>Builds annotations. Each method returns the builder itself, so that calls can be chained.</summary>
public class AnnotationEntityBuilder
{
    private readonly string _text;
    private Point3D? _point;
    private string _target = "";
    private AnnotationDirection _direction;
    private double _height = 2.5;
    private double? _distance;
    private string _layer = "0";
    private short _color = 256;

    /// <summary>Creates a builder for an annotation.</summary>
    /// <param name="text">The text; line feeds separate lines.</param>
    public AnnotationEntityBuilder(string text)
    {
        Verify.NotBlank(text);
        _text = text;
    }

    /// <summary>Sets the annotated entity, to which the arrow points.</summary>
    /// <param name="target">The entity.</param>
    /// <returns>This builder, for the next call.</returns>
    public AnnotationEntityBuilder SetTarget(IAnnotateable target)
    {
        Verify.NotNull(target);
        _target = target.UniqueId;
        _point = target.GetAnnotationPoint();
        return this;
    }

    /// <summary>Sets the point that the arrow points to.</summary>
    /// <param name="point">The point, in world coordinates.</param>
    /// <returns>This builder, for the next call.</returns>
    public AnnotationEntityBuilder SetPoint(Point3D point)
    {
        Verify.NotNull(point);
        _point = point;
        return this;
    }

    /// <summary>Sets the side of the point on which the text is.</summary>
    /// <param name="direction">The side, or two adjacent sides for a corner.</param>
    /// <returns>This builder, for the next call.</returns>
    public AnnotationEntityBuilder SetDirection(AnnotationDirection direction)
    {
        _direction = direction;
        return this;
    }

    /// <summary>Sets the text height. 2.5 by default.</summary>
    /// <param name="height">The height in drawing units, above 0.</param>
    /// <returns>This builder, for the next call.</returns>
    public AnnotationEntityBuilder SetTextHeight(double height)
    {
        _height = Positive(height, nameof(height));
        return this;
    }

    /// <summary>Sets the distance of the text from the point. Six times the text height by default.</summary>
    /// <param name="distance">The distance in drawing units, above 0.</param>
    /// <returns>This builder, for the next call.</returns>
    public AnnotationEntityBuilder SetDistance(double distance)
    {
        _distance = Positive(distance, nameof(distance));
        return this;
    }

    /// <summary>Sets the layer of text and arrow. "0" by default.</summary>
    /// <param name="layerName">The name of the layer, which is added to the drawing when it is saved.</param>
    /// <returns>This builder, for the next call.</returns>
    public AnnotationEntityBuilder SetLayer(string layerName)
    {
        Verify.NotBlank(layerName);
        _layer = layerName;
        return this;
    }

    /// <summary>Sets the colour of text and arrow. By layer by default.</summary>
    /// <param name="colorId">The colour index: 1 to 255, or 256 for by layer.</param>
    /// <returns>This builder, for the next call.</returns>
    public AnnotationEntityBuilder SetColorId(short colorId)
    {
        _color = colorId;
        return this;
    }

    /// <summary>Builds the annotation.</summary>
    /// <returns>The annotation.</returns>
    /// <exception cref="InvalidOperationException">Neither a target nor a point was set.</exception>
    public AnnotationEntity Build()
    {
        Point3D tip = _point ?? throw new InvalidOperationException(
            "The annotation has no target and no point; set one of them before it is built.");
        var xdata = new AnnotationXdata(Guid.NewGuid().ToString("N"), _target, _direction);
        (double x, double y) = Side();
        double distance = _distance ?? (6 * _height);
        var end = new Cad3DPoint(tip.X + (x * distance), tip.Y + (y * distance), tip.Z);
        return new AnnotationEntity(Note(end, x, y), Leader(tip, end), xdata);
    }

    private static double Positive(double value, string name)
    {
        return double.IsFinite(value) && value > 0
            ? value
            : throw Verify.OutOfRange(name, value, "A length is a finite number above 0.");
    }

    /// <summary>The unit vector from the point to the text.</summary>
    private (double X, double Y) Side()
    {
        double x = Sign(AnnotationDirection.Right) - Sign(AnnotationDirection.Left);
        double y = Sign(AnnotationDirection.Above) - Sign(AnnotationDirection.Below);
        (x, y) = x == 0 && y == 0 ? (1, 1) : (x, y);
        double length = Math.Sqrt((x * x) + (y * y));
        return (x / length, y / length);
    }

    private int Sign(AnnotationDirection side) => (_direction & side) != 0 ? 1 : 0;

    /// <summary>The text is attached at the side or corner that is nearest to the point.</summary>
    private CadMText Note(Cad3DPoint at, double x, double y)
    {
        int column = x > 0 ? 0 : x < 0 ? 2 : 1;
        int row = y < 0 ? 0 : y > 0 ? 2 : 1;
        double gap = 0.4 * _height;
        return new CadMText
        {
            Text = AnnotationText.Escape(_text),
            InsertionPoint = new Cad3DPoint(at.X + (Math.Sign(x) * gap), at.Y + (Math.Sign(y) * gap), at.Z),
            InitialTextHeight = _height,
            AttachmentPoint = (CadAttachmentPoint)((3 * row) + column + 1),
            LayerName = _layer,
            ColorId = _color,
        };
    }

    private CadLeader Leader(Point3D tip, Cad3DPoint end)
    {
        var leader = new CadLeader { LayerName = _layer, ColorId = _color, TextHeight = _height };
        leader.Coordinates.Add(new Cad3DPoint(tip.X, tip.Y, tip.Z));
        leader.Coordinates.Add(end);
        return leader;
    }
}
