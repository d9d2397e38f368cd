# Seven series as a user would plot them: gnuplot -e "form='svg'; data='FILE'; out='FILE'" graph_peer.gp
set terminal form size 1200,800
set output out
set grid
plot for [i=2:8] data using 1:i with lines title "s".i
