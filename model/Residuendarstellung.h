// How the adjustment's results are drawn beside the usual way, each by a choice of its own: a value.
#pragma once

namespace zrw {

struct Residuendarstellung {
    /// Semi-axes of the ellipse that holds a point with 95 %, in those of the standard ellipse: the root of
    /// the 95 % quantile of chi squared with two degrees of freedom, -2 ln 0.05.
    static constexpr double kVertrauen95 = 2.4477468306808166;

    bool ShowKooVergleich = false;  ///< second list of coordinates minus the adjusted ones, as vectors
    bool ShowRelEllipsen = false;   ///< ellipses of one end of a line against the other
    bool Residuenpfeile = false;    ///< residuals with a head and a wide pen
    bool EllipsenGefuellt = false;  ///< with what lies below shining through
    bool Ellipsen95 = false;        ///< not the standard ellipse
    double Ellipsenmassstab = 0.0;  ///< magnification of ellipses; 0: that of the residuals

    [[nodiscard]] bool EigenerEllipsenmassstab() const { return Ellipsenmassstab > 0.0; }
    /// Pixels for a millimetre of a semi-axis. @param resMF magnification of residuals
    [[nodiscard]] double Ellipsenfaktor(double resMF) const {
        return (EigenerEllipsenmassstab() ? Ellipsenmassstab : resMF) * (Ellipsen95 ? kVertrauen95 : 1.0);
    }
    /// Whether anything is drawn in another than the usual way.
    [[nodiscard]] bool WeichtAb() const {
        return ShowKooVergleich || ShowRelEllipsen || Residuenpfeile || EllipsenGefuellt || Ellipsen95 ||
               EigenerEllipsenmassstab();
    }
};

}  // namespace zrw
