using Korvan.CAD.FileFormats.Cad.CadObjects;
using Korvan.CAD.Primitives;

namespace Korvan.CAD.Annotations;

/// <summary>A text that annotates an entity or a point, with an arrow to it.</summary>
public class AnnotationEntity : IDrawingEntity
{
    internal AnnotationEntity(CadMText note, CadLeader? leader, AnnotationXdata xdata)
    {
        Note = note;
        Leader = leader;
        Xdata = xdata;
    }

    /// <summary>Gets the globally unique identifier of the annotation.</summary>
    public string UniqueId => Xdata.Id;

    /// <summary>Gets the type name, "ANNOTATION".</summary>
    public string TypeNameText => "ANNOTATION";

    /// <summary>Gets or sets the text; line feeds separate lines.</summary>
    public string Text
    {
        get => AnnotationText.Unescape(Note.Text);
        set => Note.Text = AnnotationText.Escape(value);
    }

    /// <summary>Gets the point that the arrow points to, in world coordinates.</summary>
    public Point3D Point =>
        ToPoint(Leader is { Coordinates.Count: > 0 } leader ? leader.Coordinates[0] : Note.InsertionPoint);

    /// <summary>Gets the insertion point of the text, in world coordinates.</summary>
    public Point3D TextPoint => ToPoint(Note.InsertionPoint);

    /// <summary>Gets the handle of the annotated entity; empty for an annotated point.</summary>
    public string TargetId => Xdata.TargetId;

    /// <summary>Gets the side of the point on which the text is.</summary>
    public AnnotationDirection Direction => Xdata.Direction;

    /// <summary>Gets the text height, in drawing units.</summary>
    public double TextHeight => Note.InitialTextHeight;

    /// <summary>Gets or sets the name of the layer of text and arrow.</summary>
    public string LayerName
    {
        get => Note.LayerName;
        set
        {
            Note.LayerName = value;
            if (Leader is not null)
            {
                Leader.LayerName = value;
            }
        }
    }

    internal CadMText Note { get; }

    internal CadLeader? Leader { get; }

    internal AnnotationXdata Xdata { get; }

    private static Point3D ToPoint(Cad3DPoint point) => new(point.X, point.Y, point.Z);
}
