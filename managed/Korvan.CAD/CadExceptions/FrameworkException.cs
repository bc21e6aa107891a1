using System;

namespace Korvan.CAD.CadExceptions;

/// <summary>The root of the failures that this library raises.</summary>
public class FrameworkException : Exception
{
    /// <summary>Creates the exception with a message.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    public FrameworkException(string message)
        : base(message)
    {
    }

    /// <summary>Gets what failed, where, and what would be right.</summary>
    public new string Message => base.Message;

    /// <summary>Creates the exception with a message and the failure behind it.</summary>
    /// <param name="message">What failed, where, and what would be right.</param>
    /// <param name="innerException">The failure that led here.</param>
    public FrameworkException(string message, Exception? innerException)
        : base(message, innerException)
    {
    }
}
